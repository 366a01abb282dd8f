#include "ui/clipboard_picture.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPainter>

#include "ui/form_painter.h"
#include "ui/qt_text.h"

namespace lw::ui {

QImage renderForm(const Form& form) {
    QImage image(formSize(form, kScreenScale), QImage::Format_RGB32);
    // 96 dots to the inch, so that a document the picture is pasted into gives it the form's true size.
    constexpr int kDotsPerMeter = 3780;
    image.setDotsPerMeterX(kDotsPerMeter);
    image.setDotsPerMeterY(kDotsPerMeter);
    image.fill(toQColor(form.backColor));
    QPainter painter(&image);
    FormPainter(kScreenScale).paintForm(painter, form);
    painter.end();
    return image;
}

void copyFormPicture(const Form& form) { QGuiApplication::clipboard()->setImage(renderForm(form)); }

}  // namespace lw::ui
