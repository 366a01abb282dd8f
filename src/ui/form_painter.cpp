#include "ui/form_painter.h"

#include <QFileInfo>
#include <QFontDatabase>
#include <QFontMetrics>
#include <algorithm>
#include <cmath>

#include "fields/box_dollar_sign.h"
#include "model/containers.h"
#include "ui/qt_text.h"

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
        {"Tahoma", "DejaVu Sans"},          {"Arial Narrow", "Liberation Sans Narrow"},
        {"ArialNarrow", "Liberation Sans Narrow"},
        {"Arial", "Liberation Sans"},       {"Times New Roman", "Liberation Serif"},
        {"Courier New", "Liberation Mono"}, {"MS Sans Serif", "DejaVu Sans"},
    };
    for (const auto& [original, twin] : twins) {
        if (!families.contains(QString::fromLatin1(original)) && families.contains(QString::fromLatin1(twin)))
            QFont::insertSubstitution(QString::fromLatin1(original), QString::fromLatin1(twin));
    }
}

QFont scaledFont(const std::string& name, double points, bool bold, bool italic, double scale) {
    installFontSubstitutes();
    QFont font(toQString(name));
    // A point is twenty twips; whole pixels keep the screen's text as the classic renderer had it.
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(points * 20.0 * scale))));
    font.setBold(bold);
    font.setItalic(italic);
    return font;
}

QFont controlFont(const Control& control, double scale) {
    return scaledFont(control.fontName, control.fontSize, control.fontBold, control.fontItalic, scale);
}

int toPixels(int twips, double scale) { return static_cast<int>(std::lround(twips * scale)); }

QRect controlRect(const Control& control, double scale) {
    const int left = formLeft(control);
    const int top = formTop(control);
    const int x = toPixels(left, scale);
    const int y = toPixels(top, scale);
    return QRect(x, y, toPixels(left + control.width, scale) - x, toPixels(top + control.height, scale) - y);
}

QRect paintedExtent(const Control& control, double scale) {
    QRect extent = control.kind == ControlKind::Line
                       ? QRect(QPoint(toPixels(formLeft(control), scale), toPixels(formTop(control), scale)),
                               QPoint(toPixels(control.x2 + originLeft(control), scale),
                                      toPixels(control.y2 + originTop(control), scale)))
                             .normalized()
                       : controlRect(control, scale);
    if (takesBoxDollarSign(control)) extent = extent.united(boxDollarSignRect(control, scale));
    const int stroke = std::max(2, static_cast<int>(std::ceil(control.borderWidth * 15 * scale))) + 1;
    return extent.adjusted(-stroke, -stroke, stroke, stroke);
}

QSize formSize(const Form& form, double scale) {
    return QSize(std::max(1, toPixels(form.width, scale)), std::max(1, toPixels(form.height, scale)));
}

LabelLayout labelLayout(const Control& label, double scale) {
    const int margin = std::max(1, static_cast<int>(std::lround(kTwipsPerPixel * scale)));
    // As on any label, "&&" shows one "&" and a single "&" marks an access key.
    LabelLayout layout{controlRect(label, scale).adjusted(margin, 0, -margin, 0),
                       withoutAccessMarks(withLineFeeds(label.caption))};
    // A long text opens each of its lines with a blank; drawn as an indent, the lines it wraps stay flush
    // with the first.
    QStringList lines = layout.text.split(QLatin1Char('\n'));
    const bool indented = label.alignment == 0 &&
                          std::all_of(lines.cbegin(), lines.cend(),
                                      [](const QString& line) { return line.startsWith(QLatin1Char(' ')); });
    if (indented) {
        for (QString& line : lines) line.remove(0, 1);
        layout.text = lines.join(QLatin1Char('\n'));
        layout.box.setLeft(layout.box.left() +
                           QFontMetrics(controlFont(label, scale)).horizontalAdvance(QLatin1Char(' ')));
    }
    return layout;
}

QRect textArea(const Control& control, double scale) {
    const auto px = [scale](int pixelsAt96) {
        return std::max(1, static_cast<int>(std::lround(pixelsAt96 * kTwipsPerPixel * scale)));
    };
    QRect inner = controlRect(control, scale);
    if (control.borderStyle != 0) inner.adjust(px(1), px(1), -px(1), -px(1));
    return inner.adjusted(px(2), control.multiLine ? px(1) : 0, -px(2), 0);
}

QRect boxDollarSignRect(const Control& field, double scale) {
    const QRect r = controlRect(field, scale);
    const int left = toPixels(formLeft(field) - kBoxDollarSignRoom, scale);
    return QRect(left, r.top(), r.left() - left, r.height());
}

QFont boxDollarSignFont(double scale) { return scaledFont("Tahoma", 8, false, false, scale); }

bool hasEditor(ControlKind kind) {
    switch (kind) {
        case ControlKind::TextBox:
        case ControlKind::ComboBox:
        case ControlKind::CommandButton:
        case ControlKind::OptionButton:
            return true;
        default:
            return false;
    }
}

namespace {

int layerOf(ControlKind kind) {
    switch (kind) {
        case ControlKind::Frame:
        case ControlKind::Picture:
        case ControlKind::TabControl:
            return 0;
        case ControlKind::Shape:
        case ControlKind::Line:
        case ControlKind::Image:
        case ControlKind::Label:
        case ControlKind::CheckLabel:
            return 1;
        default:
            return 2;
    }
}

}  // namespace

std::vector<const Control*> paintOrder(const Form& form) {
    std::vector<const Control*> order;
    order.reserve(form.controls().size());
    for (const auto& control : form.controls()) order.push_back(control.get());
    std::stable_sort(order.begin(), order.end(),
                     [](const Control* a, const Control* b) { return layerOf(a->kind) < layerOf(b->kind); });
    return order;
}

int tabStripHeight(const Control& control, double scale) {
    return control.items.empty() ? 0 : toPixels(control.tabHeight, scale);
}

int rowHeight(const Control& control, double scale) {
    return QFontMetrics(controlFont(control, scale)).height() + std::max(1, toPixels(45, scale));
}

int entryAt(const Control& control, QPoint point, double scale) {
    const QRect r = controlRect(control, scale);
    if (!r.contains(point) || control.items.empty()) return -1;
    const int count = static_cast<int>(control.items.size());
    if (control.kind == ControlKind::TabControl) {
        if (point.y() >= r.top() + tabStripHeight(control, scale)) return -1;
        return std::clamp((point.x() - r.left()) * count / std::max(1, r.width()), 0, count - 1);
    }
    if (control.kind != ControlKind::Grid && control.kind != ControlKind::ListBox) return -1;
    int row = (point.y() - r.top() - 1) / std::max(1, rowHeight(control, scale));
    // The first row of a grid is its header and cannot be chosen.
    if (control.kind == ControlKind::Grid && row == 0) return -1;
    return row < count ? row : -1;
}

QString withoutAccessMarks(const QString& caption) {
    QString shown;
    for (int i = 0; i < caption.size(); ++i) {
        if (caption[i] == QLatin1Char('&')) {
            if (i + 1 < caption.size() && caption[i + 1] == QLatin1Char('&')) {
                shown += QLatin1Char('&');
                ++i;
            }
            continue;
        }
        shown += caption[i];
    }
    return shown;
}

void FormPainter::paintForm(QPainter& painter, const Form& form, bool skipEditors) const {
    painter.save();
    painter.fillRect(QRect(QPoint(0, 0), formSize(form, scale_)), toQColor(form.backColor));
    for (const Control* control : paintOrder(form)) {
        if (!isShown(*control)) continue;
        if (takesBoxDollarSign(*control)) paintBoxDollarSign(painter, *control);
        if (skipEditors && hasEditor(control->kind)) continue;
        paintControl(painter, *control);
    }
    painter.restore();
}

void FormPainter::paintArea(QPainter& painter, const Form& form, const QRect& area, bool skipEditors) const {
    painter.save();
    painter.setClipRect(area);
    painter.fillRect(area, toQColor(form.backColor));
    for (const Control* control : paintOrder(form)) {
        if (!isShown(*control) || !paintedExtent(*control, scale_).intersects(area)) continue;
        if (takesBoxDollarSign(*control)) paintBoxDollarSign(painter, *control);
        if (skipEditors && hasEditor(control->kind)) continue;
        paintControl(painter, *control);
    }
    painter.restore();
}

void FormPainter::paintControl(QPainter& painter, const Control& control) const {
    const QRect r = controlRect(control, scale_);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setFont(controlFont(control, scale_));
    switch (control.kind) {
        case ControlKind::Label:
            paintLabel(painter, control, r);
            break;
        case ControlKind::CheckLabel:
            paintCheckLabel(painter, control, r);
            break;
        case ControlKind::Shape:
            paintShape(painter, control, r);
            break;
        case ControlKind::Line:
            paintLine(painter, control);
            break;
        case ControlKind::Frame:
            paintFrame(painter, control, r);
            break;
        case ControlKind::TextBox:
            paintTextBox(painter, control, r);
            break;
        case ControlKind::CommandButton:
            paintButton(painter, control, r);
            break;
        case ControlKind::OptionButton:
            paintOption(painter, control, r);
            break;
        case ControlKind::ComboBox:
            paintCombo(painter, control, r);
            break;
        case ControlKind::Picture:
        case ControlKind::Image:
            paintPicture(painter, control, r);
            break;
        case ControlKind::TabControl:
            paintTabs(painter, control, r);
            break;
        case ControlKind::Grid:
        case ControlKind::ListBox:
            paintRows(painter, control, r);
            break;
    }
    painter.restore();
}

void FormPainter::paintBoxDollarSign(QPainter& painter, const Control& field) const {
    painter.save();
    painter.setFont(boxDollarSignFont(scale_));
    painter.setPen(Qt::black);
    // Set off from the field by the width of its border.
    painter.drawText(boxDollarSignRect(field, scale_).adjusted(0, 0, -px(2), 0),
                     Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, QStringLiteral("$"));
    painter.restore();
}

int FormPainter::px(int pixelsAt96) const {
    return std::max(1, static_cast<int>(std::lround(pixelsAt96 * kTwipsPerPixel * scale_)));
}

QPen FormPainter::borderPen(const Control& c, QColor color) const {
    QPen pen(color);
    pen.setWidth(px(std::max(1, c.borderWidth)));
    switch (c.borderStyle) {
        case 2:
            pen.setStyle(Qt::DashLine);
            break;
        case 3:
            pen.setStyle(Qt::DotLine);
            break;
        default:
            pen.setStyle(Qt::SolidLine);
            break;
    }
    pen.setCapStyle(Qt::FlatCap);
    pen.setJoinStyle(Qt::MiterJoin);
    return pen;
}

}  // namespace lw::ui
