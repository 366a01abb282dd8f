#include "ui/face_painter.h"

#include <QFileInfo>
#include <QIcon>
#include <QImage>
#include <QPolygon>

#include "ui/command_icons.h"
#include "ui/form_painter.h"
#include "ui/qt_text.h"
#include "ui/qt_text_measure.h"

namespace lw::ui {

namespace {

Qt::PenStyle penStyleOf(face::StrokeStyle style) {
    switch (style) {
        case face::StrokeStyle::Dash:
            return Qt::DashLine;
        case face::StrokeStyle::Dot:
            return Qt::DotLine;
        default:
            return Qt::SolidLine;
    }
}

QPen strokePen(Color color, int width, face::StrokeStyle style, Qt::PenCapStyle cap) {
    QPen pen(toQColor(color));
    pen.setWidth(width);
    pen.setStyle(penStyleOf(style));
    pen.setCapStyle(cap);
    pen.setJoinStyle(Qt::MiterJoin);
    return pen;
}

// A picture is read whenever a face that shows it is painted: painted faces are kept, so that is seldom,
// and the sixteen portraits of the license's chooser are not held a second time beside them.
QImage pictureFile(const std::string& path) {
    if (path.empty()) return {};
    const QString file = toFilePath(path);
    if (!QFileInfo(file).isFile()) return {};
    return QImage(file);
}

struct ItemPainter {
    QPainter& p;

    void operator()(const face::FillItem& fill) const {
        p.fillRect(toQRect(fill.rect), toQColor(fill.color));
    }

    void operator()(const face::BorderItem& border) const {
        const QRect r = toQRect(border.rect);
        const int w = border.width;
        if (border.style == face::StrokeStyle::Solid) {
            const QBrush brush(toQColor(border.color));
            p.fillRect(QRect(r.left(), r.top(), r.width(), w), brush);
            p.fillRect(QRect(r.left(), r.bottom() - w + 1, r.width(), w), brush);
            p.fillRect(QRect(r.left(), r.top(), w, r.height()), brush);
            p.fillRect(QRect(r.right() - w + 1, r.top(), w, r.height()), brush);
            return;
        }
        p.setPen(strokePen(border.color, w, border.style, Qt::FlatCap));
        p.setBrush(Qt::NoBrush);
        p.drawRect(QRectF(r).adjusted(w / 2.0, w / 2.0, -w / 2.0, -w / 2.0));
    }

    void operator()(const face::LineItem& line) const {
        p.setPen(strokePen(line.color, line.width, line.style, Qt::SquareCap));
        p.drawLine(QPoint(line.from.x, line.from.y), QPoint(line.to.x, line.to.y));
    }

    void operator()(const face::EllipseItem& ellipse) const {
        p.setRenderHint(QPainter::Antialiasing, true);
        if (ellipse.outline)
            p.setPen(QPen(toQColor(*ellipse.outline), ellipse.outlineWidth));
        else
            p.setPen(Qt::NoPen);
        p.setBrush(toQColor(ellipse.fill));
        p.drawEllipse(QRectF(ellipse.rect.x, ellipse.rect.y, ellipse.rect.width, ellipse.rect.height));
        p.setRenderHint(QPainter::Antialiasing, false);
    }

    void operator()(const face::PolygonItem& polygon) const {
        QPolygon points;
        for (const face::Point& point : polygon.points) points << QPoint(point.x, point.y);
        p.setPen(Qt::NoPen);
        p.setBrush(toQColor(polygon.color));
        p.drawPolygon(points);
    }

    void operator()(const face::PictureItem& picture) const {
        const QRect r = toQRect(picture.place);
        const QImage image = pictureFile(picture.source);
        p.save();
        p.setClipRect(r, Qt::IntersectClip);
        p.setRenderHint(QPainter::SmoothPixmapTransform, true);
        if (!image.isNull()) {
            const QRect target =
                picture.ownSize ? QRect(r.topLeft(), (QSizeF(image.size()) * picture.pixelScale).toSize())
                                : r;
            p.drawImage(target, image);
        } else if (hasNamedPicture(picture.source)) {
            // A picture known by name (a box's icon): drawn to fit, at the painter's resolution.
            const int side = std::min(r.width(), r.height());
            p.drawPixmap(QRect(r.topLeft(), QSize(side, side)),
                         namedPicture(picture.source).pixmap(QSize(side, side)));
        }
        p.restore();
    }

    void operator()(const face::TextItem& text) const {
        if (text.runs.empty()) return;
        p.save();
        p.setPen(toQColor(text.color));
        // The text's corner lands on the whole pixel its box is drawn from, so text and box stay together.
        p.translate(text.origin.x, text.origin.y);
        p.scale(text.scale, text.scale);
        p.setClipRect(QRectF(text.clip.x, text.clip.y, text.clip.width, text.clip.height), Qt::IntersectClip);
        p.setFont(qtFont(text.face));
        for (const face::TextRun& run : text.runs)
            p.drawText(QPointF(run.at.x, run.at.y), toQString(run.text));
        p.restore();
    }

    void operator()(const face::ClipItem& clip) const {
        p.save();
        p.setClipRect(toQRect(clip.area), Qt::IntersectClip);
    }

    void operator()(const face::EndClipItem&) const { p.restore(); }
};

void paintPieces(QPainter& painter, const face::FaceDescription& face, const face::Rect* area) {
    for (const face::FacePiece& piece : face.pieces) {
        if (area && !piece.extent.intersects(*area)) continue;
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing, false);
        paintItems(painter, piece.items);
        painter.restore();
    }
}

}  // namespace

void paintItems(QPainter& painter, const std::vector<face::FaceItem>& items) {
    const ItemPainter paint{painter};
    for (const face::FaceItem& item : items) std::visit(paint, item);
}

void paintFace(QPainter& painter, const face::FaceDescription& face) {
    if (face.area) {
        paintFaceArea(painter, face, *face.area);
        return;
    }
    painter.save();
    painter.fillRect(QRect(0, 0, face.size.width, face.size.height), toQColor(face.ground));
    paintPieces(painter, face, nullptr);
    painter.restore();
}

void paintFaceArea(QPainter& painter, const face::FaceDescription& face, const face::Rect& area) {
    painter.save();
    painter.setClipRect(toQRect(area));
    painter.fillRect(toQRect(area), toQColor(face.ground));
    paintPieces(painter, face, &area);
    painter.restore();
}

}  // namespace lw::ui
