#include "ui/form_printer.h"

#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <algorithm>

#include "ui/form_painter.h"
#include "ui/qt_text.h"

namespace lw::ui {

void paintAtTrueSize(QPainter& painter, const QSize& page, int resolution, const Form& form) {
    double scale = resolution / 1440.0;
    const QSize natural = formSize(form, scale);
    if (natural.width() > page.width() || natural.height() > page.height())
        scale *= std::min(double(page.width()) / natural.width(), double(page.height()) / natural.height());
    // A form cut to its document shows nothing below or beside the cut, as on the clipboard picture.
    painter.save();
    painter.setClipRect(QRect(QPoint(0, 0), formSize(form, scale)));
    FormPainter(scale).paintForm(painter, form);
    painter.restore();
}

// Most forms are wider than a page is across when upright: the page turns when that lets the form stand
// larger on it, so that a W-2 or a K-1 prints at its true size.
void turnPageToFit(QPrinter& printer, const Form& form) {
    const QSize twips = formSize(form, 1.0);
    if (twips.isEmpty()) return;
    auto fit = [&](QPageLayout::Orientation orientation) {
        QPageLayout layout = printer.pageLayout();
        layout.setOrientation(orientation);
        const QRectF page = layout.paintRect(QPageLayout::Inch);
        return std::min({1.0, page.width() * 1440 / twips.width(), page.height() * 1440 / twips.height()});
    };
    printer.setPageOrientation(fit(QPageLayout::Landscape) > fit(QPageLayout::Portrait)
                                   ? QPageLayout::Landscape
                                   : QPageLayout::Portrait);
}

bool paintOnPrinter(QPrinter& printer, const Form& form) {
    turnPageToFit(printer, form);
    QPainter painter;
    if (!painter.begin(&printer)) return false;
    const QRect page = printer.pageLayout().paintRectPixels(printer.resolution());
    paintAtTrueSize(painter, page.size(), printer.resolution(), form);
    return painter.end();
}

bool printForm(const Form& form, const std::string& printerName) {
    QPrinter printer(QPrinter::HighResolution);
    const QString name = toQString(printerName);
    // The paper is the printer's own (Qt keeps the paper of the printer it started with), and US Letter
    // where the printer names none: the forms are drawn for it.
    QPrinterInfo chosen = QPrinterInfo::defaultPrinter();
    for (const QPrinterInfo& info : QPrinterInfo::availablePrinters()) {
        if (info.printerName() == name) {
            printer.setPrinterName(name);
            chosen = info;
            break;
        }
    }
    const QPageSize paper = chosen.defaultPageSize();
    printer.setPageSize(paper.isValid() ? paper : QPageSize(QPageSize::Letter));
    printer.setDocName(toQString(form.caption));
    return paintOnPrinter(printer, form);
}

bool printFormToPdf(const Form& form, const QString& path) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path);
    printer.setPageSize(QPageSize(QPageSize::Letter));
    printer.setDocName(toQString(form.caption));
    return paintOnPrinter(printer, form);
}

}  // namespace lw::ui
