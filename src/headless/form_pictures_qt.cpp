// The runner's pictures drawn by the window's painter, off-screen.
#include <QImage>
#include <QString>

#include "headless/form_pictures.h"
#include "ui/clipboard_picture.h"
#include "ui/form_printer.h"

namespace lw::headless {

namespace {

class QtFormPicture : public FormPicture {
public:
    explicit QtFormPicture(QImage image) : image_(std::move(image)) {}
    int width() const override { return image_.width(); }
    int height() const override { return image_.height(); }
    std::optional<std::string> colourAt(int x, int y) const override {
        if (!image_.valid(x, y)) return std::nullopt;
        return image_.pixelColor(x, y).name().toUpper().toStdString();
    }
    bool savePng(const std::string& path) const override {
        return image_.save(QString::fromStdString(path), "PNG");
    }

private:
    QImage image_;
};

}  // namespace

std::shared_ptr<const FormPicture> drawForm(const Form& form, double zoom) {
    return std::make_shared<QtFormPicture>(ui::renderForm(form, zoom));
}

bool printFormToPdf(const Form& form, const std::string& path) {
    return ui::printFormToPdf(form, QString::fromStdString(path));
}

}  // namespace lw::headless
