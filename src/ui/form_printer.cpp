#include "ui/form_printer.h"

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

bool paintOnPrinter(QPrinter& printer, const Form& form) {
    QPainter painter;
    if (!painter.begin(&printer)) return false;
    const QRect page = printer.pageLayout().paintRectPixels(printer.resolution());
    paintAtTrueSize(painter, page.size(), printer.resolution(), form);
    return painter.end();
}

bool printForm(const Form& form, const std::string& printerName) {
    QPrinter printer(QPrinter::HighResolution);
    const QString name = toQString(printerName);
    for (const QPrinterInfo& info : QPrinterInfo::availablePrinters()) {
        if (info.printerName() == name) {
            printer.setPrinterName(name);
            break;
        }
    }
    printer.setDocName(toQString(form.caption));
    return paintOnPrinter(printer, form);
}

bool printFormToPdf(const Form& form, const QString& path) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path);
    printer.setDocName(toQString(form.caption));
    return paintOnPrinter(printer, form);
}

}  // namespace lw::ui
