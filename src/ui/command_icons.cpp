#include "ui/command_icons.h"

#include <QApplication>
#include <QFileInfo>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QStyle>
#include <cmath>
#include <map>

#include "ui/qt_text.h"

namespace lw::ui {

namespace {

constexpr int kSide = 64;

void person(QPainter& p, QPointF at, double size, const QColor& color) {
    p.setBrush(color);
    p.drawEllipse(QRectF(at.x() - size * 0.22, at.y(), size * 0.44, size * 0.44));
    QPainterPath body;
    body.moveTo(at.x() - size * 0.42, at.y() + size);
    body.cubicTo(at.x() - size * 0.42, at.y() + size * 0.45, at.x() + size * 0.42, at.y() + size * 0.45,
                 at.x() + size * 0.42, at.y() + size);
    body.closeSubpath();
    p.drawPath(body);
}

void page(QPainter& p, const QRectF& r) {
    p.setBrush(Qt::white);
    p.drawRect(r);
    p.setPen(QPen(QColor(0x90, 0x90, 0x90), 2));
    for (double y = r.top() + 10; y < r.bottom() - 4; y += 8)
        p.drawLine(QPointF(r.left() + 6, y), QPointF(r.right() - 6, y));
    p.setPen(QPen(QColor(0x30, 0x30, 0x30), 2));
}

// An open folder.
void drawOpen(QPainter& p) {
    p.setBrush(QColor(0xE8, 0xB8, 0x40));
    p.drawPolygon(QPolygonF({{6, 14}, {24, 14}, {28, 19}, {56, 19}, {56, 52}, {6, 52}}));
    p.setBrush(QColor(0xF6, 0xD3, 0x6B));
    p.drawPolygon(QPolygonF({{14, 27}, {62, 27}, {54, 52}, {6, 52}}));
}

// A diskette.
void drawSave(QPainter& p) {
    p.setBrush(QColor(0x2F, 0x5D, 0xA8));
    p.drawPolygon(QPolygonF({{8, 8}, {50, 8}, {58, 16}, {58, 58}, {8, 58}}));
    p.setBrush(Qt::white);
    p.drawRect(QRectF(16, 8, 30, 18));
    p.setBrush(QColor(0xC8, 0xC8, 0xC8));
    p.drawRect(QRectF(16, 36, 34, 22));
}

// A page and an eraser.
void drawClear(QPainter& p) {
    page(p, QRectF(12, 6, 38, 50));
    p.translate(36, 44);
    p.rotate(-35);
    p.setBrush(QColor(0xF0, 0x8C, 0xA8));
    p.drawRoundedRect(QRectF(-18, -8, 36, 16), 3, 3);
    p.setBrush(QColor(0x4A, 0x7C, 0xD0));
    p.drawRoundedRect(QRectF(4, -8, 14, 16), 3, 3);
}

// A page struck out.
void drawClose(QPainter& p) {
    page(p, QRectF(10, 6, 38, 50));
    p.setPen(QPen(QColor(0xD0, 0x20, 0x20), 7, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(34, 34), QPointF(56, 56));
    p.drawLine(QPointF(56, 34), QPointF(34, 56));
}

// A printer with its page.
void drawPrint(QPainter& p) {
    page(p, QRectF(18, 4, 28, 22));
    p.setBrush(QColor(0x70, 0x70, 0x78));
    p.drawRoundedRect(QRectF(6, 22, 52, 24), 4, 4);
    p.setBrush(Qt::white);
    p.drawRect(QRectF(16, 38, 32, 20));
    p.setBrush(QColor(0x40, 0xC0, 0x40));
    p.drawEllipse(QRectF(48, 27, 5, 5));
}

// A clipboard with its page.
void drawClip(QPainter& p) {
    p.setBrush(QColor(0xB0, 0x80, 0x50));
    p.drawRoundedRect(QRectF(10, 8, 44, 52), 4, 4);
    page(p, QRectF(16, 16, 32, 38));
    p.setBrush(QColor(0xA0, 0xA0, 0xA8));
    p.drawRoundedRect(QRectF(22, 4, 20, 10), 3, 3);
}

// One taxpayer.
void drawPerson(QPainter& p) { person(p, QPointF(32, 6), 54, QColor(0x3A, 0x78, 0xC8)); }

// Two taxpayers.
void drawPeople(QPainter& p) {
    person(p, QPointF(42, 8), 44, QColor(0x6C, 0x9E, 0xD8));
    person(p, QPointF(24, 16), 46, QColor(0x3A, 0x78, 0xC8));
}

// A gear wheel.
void drawConfigure(QPainter& p) {
    QPainterPath gear;
    const QPointF c(32, 32);
    for (int i = 0; i < 16; ++i) {
        const double angle = i * M_PI / 8;
        const double radius = (i % 2 == 0) ? 28 : 20;
        const QPointF at(c.x() + radius * std::cos(angle), c.y() + radius * std::sin(angle));
        if (i == 0)
            gear.moveTo(at);
        else
            gear.lineTo(at);
    }
    gear.closeSubpath();
    gear.addEllipse(c, 9, 9);
    gear.setFillRule(Qt::OddEvenFill);
    p.setBrush(QColor(0x80, 0x88, 0x90));
    p.drawPath(gear);
}

// A page of a calendar.
void drawCalendar(QPainter& p) {
    p.setBrush(Qt::white);
    p.drawRect(QRectF(8, 10, 48, 46));
    p.setBrush(QColor(0xD0, 0x30, 0x30));
    p.drawRect(QRectF(8, 10, 48, 12));
    p.setBrush(QColor(0x50, 0x50, 0x50));
    for (int row = 0; row < 3; ++row)
        for (int col = 0; col < 4; ++col) p.drawRect(QRectF(13 + col * 11, 27 + row * 9, 6, 5));
}

// The power sign.
void drawQuit(QPainter& p) {
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(0xC0, 0x20, 0x20), 7, Qt::SolidLine, Qt::RoundCap));
    p.drawArc(QRectF(10, 12, 44, 44), 120 * 16, 300 * 16);
    p.drawLine(QPointF(32, 6), QPointF(32, 30));
}

using Drawing = void (*)(QPainter&);

const std::map<std::string, Drawing>& drawings() {
    static const std::map<std::string, Drawing> all = {
        {"open", drawOpen},         {"save", drawSave},     {"clear", drawClear},
        {"close", drawClose},       {"print", drawPrint},   {"clip", drawClip},
        {"person", drawPerson},     {"people", drawPeople}, {"configure", drawConfigure},
        {"calendar", drawCalendar}, {"quit", drawQuit},
    };
    return all;
}

QStyle::StandardPixmap boxIcon(const QString& name) {
    if (name == QLatin1String("information")) return QStyle::SP_MessageBoxInformation;
    if (name == QLatin1String("exclamation") || name == QLatin1String("warning"))
        return QStyle::SP_MessageBoxWarning;
    if (name == QLatin1String("question")) return QStyle::SP_MessageBoxQuestion;
    if (name == QLatin1String("critical")) return QStyle::SP_MessageBoxCritical;
    return QStyle::SP_CustomBase;
}

}  // namespace

bool hasNamedPicture(const std::string& name) {
    const QString key = QString::fromStdString(name).toLower();
    return drawings().count(key.toStdString()) > 0 || boxIcon(key) != QStyle::SP_CustomBase;
}

QIcon namedPicture(const std::string& name) {
    const QString key = QString::fromStdString(name).toLower();
    if (boxIcon(key) != QStyle::SP_CustomBase) return QApplication::style()->standardIcon(boxIcon(key));
    auto it = drawings().find(key.toStdString());
    if (it == drawings().end()) return {};
    QPixmap pixmap(kSide, kSide);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(QPen(QColor(0x30, 0x30, 0x30), 2));
    it->second(painter);
    painter.end();
    return QIcon(pixmap);
}

QIcon commandIcon(const std::string& picture) {
    const QString file = toFilePath(picture);
    if (QFileInfo(file).isFile()) {
        QIcon icon(file);
        if (!icon.isNull()) return icon;
    }
    if (hasNamedPicture(picture)) return namedPicture(picture);
    return QApplication::style()->standardIcon(QStyle::SP_FileIcon);
}

}  // namespace lw::ui
