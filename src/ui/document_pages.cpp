#include "ui/document_pages.h"

#include <QPageSize>
#include <QPainter>

#include "ui/clipboard_picture.h"
#include "ui/form_printer.h"

namespace lw::ui {

namespace {
// Fine enough that the printed rules and letters of a form stay sharp.
constexpr int kPdfResolution = 1200;
}  // namespace

PdfBook::PdfBook(const QString& path) : writer_(path) {
    writer_.setResolution(kPdfResolution);
    writer_.setPageSize(QPageSize(QPageSize::Letter));
    writer_.setPageMargins(QMarginsF(0.25, 0.25, 0.25, 0.25), QPageLayout::Inch);
    writer_.setCreator(QStringLiteral("Ledgerwick"));
}

PdfBook::~PdfBook() {
    if (painter_) painter_->end();
}

bool PdfBook::addPage(const Form& form) {
    if (!painter_) {
        painter_ = std::make_unique<QPainter>();
        if (!painter_->begin(&writer_)) return false;
    } else if (!writer_.newPage()) {
        return false;
    }
    const QRect page = writer_.pageLayout().paintRectPixels(writer_.resolution());
    painter_->save();
    paintAtTrueSize(*painter_, page.size(), writer_.resolution(), form);
    painter_->restore();
    ++pages_;
    return true;
}

bool PdfBook::finish() {
    if (!painter_) return false;
    const bool ended = painter_->end();
    painter_.reset();
    return ended;
}

bool writePagePicture(const Form& form, const QString& path, double zoom) {
    return renderForm(form, zoom).save(path, "PNG");
}

}  // namespace lw::ui
