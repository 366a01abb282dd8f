#include "ui/clipboard_picture.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPainter>

#include "ui/form_painter.h"
#include "ui/qt_text.h"

namespace lw::ui {

QImage renderForm(const Form& form) { return renderForm(form, 1.0); }

QImage renderForm(const Form& form, double zoom) {
    const double scale = kScreenScale * zoom;
    QImage image(formSize(form, scale), QImage::Format_RGB32);
    // 96 dots to the inch, so that a document the picture is pasted into gives it the form's true size.
    const int dotsPerMeter = static_cast<int>(3780 * zoom);
    image.setDotsPerMeterX(dotsPerMeter);
    image.setDotsPerMeterY(dotsPerMeter);
    image.fill(toQColor(form.backColor));
    QPainter painter(&image);
    FormPainter(scale).paintForm(painter, form);
    painter.end();
    return image;
}

void copyFormPicture(const Form& form) { QGuiApplication::clipboard()->setImage(renderForm(form)); }

}  // namespace lw::ui
