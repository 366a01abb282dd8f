#include "ui/form_painter.h"

#include <QFileInfo>
#include <QFontDatabase>
#include <algorithm>
#include <cmath>

#include "face/face_description.h"
#include "fields/box_dollar_sign.h"
#include "model/containers.h"
#include "ui/face_painter.h"
#include "ui/qt_text.h"
#include "ui/qt_text_measure.h"

namespace lw::ui {

void installFontSubstitutes() {
    static bool done = false;
    if (done) return;
    done = true;
    // Debian's Wine fonts carry a Tahoma of the same metrics as the one the forms were laid out with; it
    // lies outside the fonts the system lists, so the program takes it in itself. Its bold face lists no
    // characters and would draw nothing, so bold text is the regular face made heavier.
    const QString wineTahoma = QStringLiteral("/usr/share/wine/fonts/tahoma.ttf");
    if (QFileInfo::exists(wineTahoma)) QFontDatabase::addApplicationFont(wineTahoma);
    const QStringList families = QFontDatabase::families();
    // Metric twins keep the official forms' text inside their boxes where the originals are missing.
    const std::pair<const char*, const char*> twins[] = {
        {"Tahoma", "DejaVu Sans"},
        {"Arial Narrow", "Liberation Sans Narrow"},
        {"ArialNarrow", "Liberation Sans Narrow"},
        {"Arial", "Liberation Sans"},
        {"Times New Roman", "Liberation Serif"},
        {"Courier New", "Liberation Mono"},
        {"MS Sans Serif", "DejaVu Sans"},
    };
    for (const auto& [original, twin] : twins) {
        if (!families.contains(QString::fromLatin1(original)) && families.contains(QString::fromLatin1(twin)))
            QFont::insertSubstitution(QString::fromLatin1(original), QString::fromLatin1(twin));
    }
}

QFont scaledFont(const std::string& name, double points, bool bold, bool italic, double scale) {
    QFont font = qtFont(face::designFace(name, points, bold, italic));
    // Whole pixels only: the size is rounded down, so a text the painter fits fits the widget too.
    font.setPixelSize(std::max(1, static_cast<int>(std::floor(points * 20.0 * scale + 1e-6))));
    font.setStyleStrategy(QFont::PreferDefault);
    return font;
}

QFont controlFont(const Control& control, double scale) {
    return scaledFont(control.fontName, control.fontSize, control.fontBold, control.fontItalic, scale);
}

QRect controlRect(const Control& control, double scale) { return toQRect(face::controlRect(control, scale)); }

QRect paintedExtent(const Control& control, double scale) {
    return toQRect(face::paintedExtent(control, scale));
}

QSize formSize(const Form& form, double scale) {
    const face::Size size = face::formSize(form, scale);
    return QSize(size.width, size.height);
}

QRect boxDollarSignRect(const Control& field, double scale) {
    return toQRect(face::boxDollarSignRect(field, scale));
}

QFont boxDollarSignFont(double scale) { return scaledFont("Tahoma", 8, false, false, scale); }

int tabStripHeight(const Control& control, double scale) { return face::tabStripHeight(control, scale); }

int rowHeight(const Control& control, double scale) {
    return face::rowHeight(control, scale, qtTextMeasure());
}

int entryAt(const Control& control, QPoint point, double scale) {
    return face::entryAt(control, face::Point{point.x(), point.y()}, scale, qtTextMeasure());
}

void FormPainter::paintForm(QPainter& painter, const Form& form, bool skipEditors) const {
    paintFace(painter, face::describeFace(form, face::FaceRequest{scale_, skipEditors, {}}, qtTextMeasure()));
}

void FormPainter::paintArea(QPainter& painter, const Form& form, const QRect& area, bool skipEditors) const {
    paintFace(painter, face::describeFace(form, face::FaceRequest{scale_, skipEditors, toRect(area)},
                                          qtTextMeasure()));
}

void FormPainter::paintControl(QPainter& painter, const Control& control) const {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    paintItems(painter, face::describeControl(control, scale_, qtTextMeasure()));
    painter.restore();
}

void FormPainter::paintBoxDollarSign(QPainter& painter, const Control& field) const {
    paintItems(painter, {face::describeBoxDollarSign(field, scale_, qtTextMeasure())});
}

}  // namespace lw::ui
