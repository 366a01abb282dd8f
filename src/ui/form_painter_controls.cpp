// How each kind of control looks, drawn inside its rectangle at the painter's scale.
#include <QFileInfo>
#include <QHash>
#include <QImage>
#include <QPolygon>
#include <algorithm>
#include <cmath>

#include "model/containers.h"
#include "ui/command_icons.h"
#include "ui/control_text.h"
#include "ui/form_painter.h"
#include "ui/qt_text.h"

namespace lw::ui {

namespace {

const QColor kBoxBorder(0x7A, 0x7A, 0x7A);
const QColor kFace(0xF0, 0xF0, 0xF0);
const QColor kLight(0xFF, 0xFF, 0xFF);
const QColor kShadow(0xA0, 0xA0, 0xA0);
const QColor kDark(0x69, 0x69, 0x69);
const QColor kGreyText(0x6D, 0x6D, 0x6D);

// A border drawn wholly inside the rectangle, whatever the pen's width.
void strokeInside(QPainter& p, const QRect& r, const QPen& pen) {
    const int w = pen.width();
    if (r.width() <= 0 || r.height() <= 0) return;
    if (pen.style() == Qt::SolidLine) {
        const QBrush brush(pen.color());
        p.fillRect(QRect(r.left(), r.top(), r.width(), w), brush);
        p.fillRect(QRect(r.left(), r.bottom() - w + 1, r.width(), w), brush);
        p.fillRect(QRect(r.left(), r.top(), w, r.height()), brush);
        p.fillRect(QRect(r.right() - w + 1, r.top(), w, r.height()), brush);
        return;
    }
    p.setPen(pen);
    p.setBrush(Qt::NoBrush);
    p.drawRect(QRectF(r).adjusted(w / 2.0, w / 2.0, -w / 2.0, -w / 2.0));
}

void bevel(QPainter& p, const QRect& r, int w, const QColor& topLeft, const QColor& bottomRight) {
    p.fillRect(QRect(r.left(), r.top(), r.width(), w), topLeft);
    p.fillRect(QRect(r.left(), r.top(), w, r.height()), topLeft);
    p.fillRect(QRect(r.left(), r.bottom() - w + 1, r.width(), w), bottomRight);
    p.fillRect(QRect(r.right() - w + 1, r.top(), w, r.height()), bottomRight);
}

// Pictures are read once per path; a file that cannot be read is looked for again next time.
QImage pictureFile(const std::string& path) {
    static QHash<QString, QImage> cache;
    if (path.empty()) return {};
    const QString file = toFilePath(path);
    auto it = cache.constFind(file);
    if (it != cache.constEnd()) return *it;
    if (!QFileInfo(file).isFile()) return {};
    QImage image(file);
    if (!image.isNull()) cache.insert(file, image);
    return image;
}

}  // namespace

void FormPainter::paintLabel(QPainter& p, const Control& c, const QRect& r) const {
    // A label is its caption and, when opaque, its back colour; boxes around text are shapes of their own.
    if (c.opaque) p.fillRect(r, toQColor(c.backColor));
    p.setPen(c.enabled ? toQColor(c.foreColor) : kGreyText);
    drawText(p, captionLayout(c), scale_);
}

void FormPainter::paintCheckLabel(QPainter& p, const Control& c, const QRect& r) const {
    if (c.opaque) p.fillRect(r, toQColor(c.backColor));
    strokeInside(p, r, QPen(QBrush(toQColor(c.borderColor)), px(1)));
    p.setPen(toQColor(c.foreColor));
    drawText(p, checkLayout(c), scale_);
}

void FormPainter::paintShape(QPainter& p, const Control& c, const QRect& r) const {
    if (c.opaque) p.fillRect(r, toQColor(c.backColor));
    if (c.borderStyle != 0) strokeInside(p, r, borderPen(c, toQColor(c.borderColor)));
}

void FormPainter::paintLine(QPainter& p, const Control& c) const {
    if (c.borderStyle == 0) return;
    QPen pen = borderPen(c, toQColor(c.borderColor));
    pen.setCapStyle(Qt::SquareCap);
    p.setPen(pen);
    p.drawLine(QPoint(toPixels(formLeft(c), scale_), toPixels(formTop(c), scale_)),
               QPoint(toPixels(c.x2 + originLeft(c), scale_), toPixels(c.y2 + originTop(c), scale_)));
}

void FormPainter::paintFrame(QPainter& p, const Control& c, const QRect& r) const {
    p.fillRect(r, toQColor(c.backColor));
    if (c.borderStyle == 0) return;
    const TextBlock caption = frameCaptionLayout(c);
    const int top = caption.lines.empty() ? 0 : toPixels(static_cast<int>(caption.area.height() / 2), scale_);
    const QRect box = r.adjusted(0, top, 0, 0);
    // An etched line: a shadow with a light line beside it.
    strokeInside(p, box.adjusted(px(1), px(1), 0, 0), QPen(QBrush(kLight), px(1)));
    strokeInside(p, box.adjusted(0, 0, -px(1), -px(1)), QPen(QBrush(kShadow), px(1)));
    if (caption.lines.empty()) return;
    const QRectF area = caption.area.translated(caption.origin);
    const QRect text(QPoint(toPixels(static_cast<int>(area.left()), scale_), r.top()),
                     QPoint(toPixels(static_cast<int>(std::ceil(area.right())), scale_),
                            r.top() + toPixels(static_cast<int>(std::ceil(area.height())), scale_)));
    p.fillRect(text.intersected(r), toQColor(c.backColor));
    p.setPen(c.enabled ? toQColor(c.foreColor) : kGreyText);
    drawText(p, caption, scale_);
}

void FormPainter::paintTextBox(QPainter& p, const Control& c, const QRect& r) const {
    p.fillRect(r, toQColor(c.backColor));
    if (c.borderStyle != 0) strokeInside(p, r, QPen(QBrush(kBoxBorder), px(1)));
    p.setPen(c.enabled ? toQColor(c.foreColor) : kGreyText);
    drawText(p, fieldLayout(c), scale_);
}

void FormPainter::paintButton(QPainter& p, const Control& c, const QRect& r) const {
    p.fillRect(r, kFace);
    bevel(p, r, px(1), kLight, kDark);
    bevel(p, r.adjusted(px(1), px(1), -px(1), -px(1)), px(1), kFace, kShadow);
    p.setPen(c.enabled ? toQColor(c.foreColor) : kGreyText);
    drawText(p, buttonLayout(c), scale_);
}

void FormPainter::paintOption(QPainter& p, const Control& c, const QRect& r) const {
    if (c.opaque) p.fillRect(r, toQColor(c.backColor));
    const int d = px(12);
    const QRect circle(r.left() + px(1), r.center().y() - d / 2, d, d);
    p.setRenderHint(QPainter::Antialiasing, true);
    p.setPen(QPen(kDark, px(1)));
    p.setBrush(kLight);
    p.drawEllipse(QRectF(circle).adjusted(0.5, 0.5, -0.5, -0.5));
    if (c.value) {
        p.setPen(Qt::NoPen);
        p.setBrush(toQColor(c.foreColor));
        p.drawEllipse(QRectF(circle).adjusted(d * 0.3, d * 0.3, -d * 0.3, -d * 0.3));
    }
    p.setRenderHint(QPainter::Antialiasing, false);
    p.setPen(c.enabled ? toQColor(c.foreColor) : kGreyText);
    drawText(p, optionLayout(c), scale_);
}

void FormPainter::paintCombo(QPainter& p, const Control& c, const QRect& r) const {
    p.fillRect(r, toQColor(c.backColor));
    strokeInside(p, r, QPen(QBrush(kBoxBorder), px(1)));
    const int arrowWidth = r.right() + 1 - toPixels(formLeft(c) + c.width - comboArrowTwips(c), scale_);
    const QRect arrow(r.right() - arrowWidth + 1, r.top() + px(1), arrowWidth - px(1),
                      r.height() - 2 * px(1));
    p.fillRect(arrow, kFace);
    const QPoint m = arrow.center();
    const int a = std::max(2, px(3));
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::black);
    p.drawPolygon(QPolygon({QPoint(m.x() - a, m.y() - a / 2), QPoint(m.x() + a, m.y() - a / 2),
                            QPoint(m.x(), m.y() + a / 2 + 1)}));
    p.setPen(c.enabled ? toQColor(c.foreColor) : kGreyText);
    drawText(p, comboLayout(c), scale_);
}

void FormPainter::paintPicture(QPainter& p, const Control& c, const QRect& r) const {
    const bool box = c.kind == ControlKind::Picture;
    if (box) p.fillRect(r, toQColor(c.backColor));
    const QImage image = pictureFile(c.picture);
    p.save();
    p.setClipRect(r);
    p.setRenderHint(QPainter::SmoothPixmapTransform, true);
    if (!image.isNull()) {
        // A picture box shows its picture at the picture's own size; an image is sized to fit.
        const double factor = kTwipsPerPixel * scale_;
        const QRect target =
            box || r.isEmpty() ? QRect(r.topLeft(), (QSizeF(image.size()) * factor).toSize()) : r;
        p.drawImage(target, image);
    } else if (!c.picture.empty() && hasNamedPicture(c.picture)) {
        // A picture known by name (a box's icon): drawn to fit, at the painter's resolution.
        const int side = std::min(r.width(), r.height());
        const QIcon icon = namedPicture(c.picture);
        p.drawPixmap(QRect(r.topLeft(), QSize(side, side)), icon.pixmap(QSize(side, side)));
    }
    p.restore();
    if (box && c.borderStyle != 0) strokeInside(p, r, QPen(QBrush(kBoxBorder), px(1)));
}

void FormPainter::paintTabs(QPainter& p, const Control& c, const QRect& r) const {
    const int strip = tabStripHeight(c, scale_);
    const QRect body = r.adjusted(0, strip, 0, 0);
    p.fillRect(body, toQColor(c.backColor));
    // With its strip taken away (a half printed as a page) the control is a plain ground, unframed.
    if (c.tabHeight <= 0) return;
    strokeInside(p, body, QPen(QBrush(kBoxBorder), px(1)));
    if (strip <= 0) return;
    const std::vector<TextBlock> captions = tabLayouts(c);
    const int count = static_cast<int>(c.items.size());
    for (int i = 0; i < count; ++i) {
        const int x0 = r.left() + r.width() * i / count;
        const int x1 = r.left() + r.width() * (i + 1) / count;
        const bool current = i == c.listIndex;
        const QRect tab(x0, r.top() + (current ? 0 : px(2)), x1 - x0, strip - (current ? 0 : px(2)));
        p.fillRect(tab, current ? toQColor(c.backColor) : kFace);
        strokeInside(p, tab.adjusted(0, 0, 0, current ? 0 : -1), QPen(QBrush(kBoxBorder), px(1)));
        p.setPen(toQColor(c.foreColor));
        drawText(p, captions[static_cast<size_t>(i)], scale_);
    }
}

namespace {

// A grid's ColAlignment across the cell, the header row's included.
Qt::Alignment columnAlignment(const Control& c, int col) {
    if (c.kind != ControlKind::Grid || static_cast<size_t>(col) >= c.colAlignments.size())
        return Qt::AlignLeft;
    switch (c.colAlignments[static_cast<size_t>(col)]) {
        case kGridAlignRightCenter:
            return Qt::AlignRight;
        case kGridAlignCenterCenter:
            return Qt::AlignHCenter;
        default:
            return Qt::AlignLeft;
    }
}

}  // namespace

void FormPainter::paintRows(QPainter& p, const Control& c, const QRect& r) const {
    p.fillRect(r, toQColor(c.backColor));
    p.setClipRect(r);
    const int height = rowHeight(c, scale_);
    const bool grid = c.kind == ControlKind::Grid;
    for (size_t row = 0; row < c.items.size(); ++row) {
        const QRect line(r.left() + 1, r.top() + 1 + static_cast<int>(row) * height, r.width() - 2, height);
        if (line.top() > r.bottom()) break;
        const bool header = grid && row == 0;
        const bool chosen = static_cast<int>(row) == c.listIndex && !header;
        if (header) p.fillRect(line, kFace);
        if (chosen) p.fillRect(line, QColor(0x33, 0x99, 0xFF));
        const QStringList cells = toQString(c.items[row]).split(QLatin1Char('\t'));
        const bool sized = grid && !c.colWidths.empty();
        const int columns = sized  ? static_cast<int>(c.colWidths.size())
                            : grid ? static_cast<int>(cells.size())
                                   : 1;
        int x0 = line.left();
        for (int col = 0; col < columns; ++col) {
            const int x1 = sized ? x0 + toPixels(c.colWidths[static_cast<size_t>(col)], scale_)
                                 : line.left() + line.width() * (col + 1) / columns;
            const QRect cell(x0, line.top(), x1 - x0, height);
            x0 = x1;
            if (grid) strokeInside(p, cell, QPen(QBrush(kShadow), px(1)));
            p.setPen(chosen ? kLight : toQColor(c.foreColor));
            const QString shown = !grid                ? cells.join(QLatin1Char(' '))
                                  : col < cells.size() ? cells[col]
                                                       : QString();
            // Rows are placed in whole pixels of the screen; their text is measured as everywhere else.
            const QRectF area = QRectF(cell.adjusted(px(3), 0, -px(2), 0));
            const QRectF twips(area.topLeft() / scale_, area.size() / scale_);
            TextBlock text = layoutText(shown, designFont(c), twips,
                                        Qt::AlignVCenter | columnAlignment(c, col), TextFlow::OneLine);
            drawText(p, text, scale_);
        }
    }
    p.setClipping(false);
    strokeInside(p, r, QPen(QBrush(kBoxBorder), px(1)));
}

}  // namespace lw::ui
