// The pictures the program ships, drawn here from shapes: the backgrounds of the training Social
// Security and ITIN cards, and sixteen grey-scale portraits for the training driver's licenses. Nothing
// is random beyond a fixed recipe per picture, so every build draws the same files.
#include "pictures.h"

#include <QDir>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <cmath>

namespace {

// The card of the card form: 4335 by 2700 twips, drawn at twice the screen's density.
constexpr int kCardWidth = 578;
constexpr int kCardHeight = 360;

QFont face(int pixels, bool bold) {
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(pixels);
    font.setBold(bold);
    return font;
}

void drawGuilloche(QPainter& p, const QColor& ink) {
    p.save();
    p.setPen(QPen(ink, 1));
    for (int band = 0; band < 14; ++band) {
        QPainterPath wave;
        const double base = 30 + band * 24;
        wave.moveTo(0, base);
        for (int x = 0; x <= kCardWidth; x += 4)
            wave.lineTo(x, base + 6 * std::sin(x / 23.0 + band * 0.7) + 3 * std::sin(x / 7.0));
        p.drawPath(wave);
    }
    p.restore();
}

void drawSeal(QPainter& p, const QPointF& centre, const QColor& ink) {
    p.save();
    p.setPen(QPen(ink, 2));
    p.setBrush(Qt::NoBrush);
    for (double r : {44.0, 38.0}) p.drawEllipse(centre, r, r);
    for (int i = 0; i < 36; ++i) {
        const double a = i * M_PI / 18;
        p.drawLine(centre + QPointF(31 * std::cos(a), 31 * std::sin(a)),
                   centre + QPointF(36 * std::cos(a), 36 * std::sin(a)));
    }
    p.setFont(face(9, true));
    p.drawText(QRectF(centre.x() - 30, centre.y() - 8, 60, 16), Qt::AlignCenter, QStringLiteral("SPECIMEN"));
    p.restore();
}

// A pale card with its heading, a seal, and empty bands where the number and the name are typed.
QImage card(const QColor& paper, const QColor& ink, const QString& heading, const QString& subheading) {
    QImage image(kCardWidth, kCardHeight, QImage::Format_RGB32);
    image.fill(paper);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    drawGuilloche(p, paper.darker(112));
    p.setPen(QPen(ink, 3));
    p.drawRoundedRect(QRectF(4, 4, kCardWidth - 8, kCardHeight - 8), 14, 14);
    p.setFont(face(26, true));
    p.drawText(QRectF(0, 12, kCardWidth, 34), Qt::AlignHCenter, heading);
    p.setFont(face(13, true));
    p.drawText(QRectF(0, 48, kCardWidth, 20), Qt::AlignHCenter, subheading);
    drawSeal(p, QPointF(62, 64), ink);
    // The bands of the number (1140 to 1635 twips) and of the name (1860 to 2535), left blank.
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(255, 255, 255, 170));
    p.drawRoundedRect(QRectF(40, 148, kCardWidth - 80, 70), 8, 8);
    p.drawRoundedRect(QRectF(40, 244, kCardWidth - 80, 94), 8, 8);
    p.setPen(ink);
    p.setFont(face(10, false));
    p.drawText(QRectF(48, 132, 300, 14), Qt::AlignLeft, QStringLiteral("NUMBER"));
    p.drawText(QRectF(48, 228, 300, 14), Qt::AlignLeft, QStringLiteral("NAME"));
    p.setFont(face(12, true));
    p.drawText(QRectF(0, kCardHeight - 22, kCardWidth, 16), Qt::AlignHCenter,
               QStringLiteral("FOR TRAINING USE ONLY - NOT A GOVERNMENT DOCUMENT"));
    return image;
}

// What makes one portrait differ from the next.
struct Portrait {
    int background;  // grey of the backdrop
    int skin;        // grey of the face
    int hair;        // grey of the hair
    int hairStyle;   // 0 short, 1 long, 2 bald with a fringe, 3 curly, 4 bun, 5 side part
    double faceWidth;
    double faceHeight;
    int clothes;  // grey of the shirt or jacket
    int collar;   // 0 open shirt, 1 jacket and tie, 2 round neck, 3 turtleneck
    bool glasses;
    bool beard;
    bool moustache;
};

const Portrait kPortraits[16] = {
    {200, 190, 60, 0, 58, 74, 90, 1, false, false, false},
    {215, 170, 40, 1, 54, 72, 150, 2, false, false, false},
    {190, 200, 120, 2, 62, 78, 70, 0, true, false, true},
    {225, 150, 30, 3, 56, 72, 110, 2, false, false, false},
    {205, 185, 80, 4, 52, 70, 170, 3, true, false, false},
    {195, 165, 50, 5, 60, 76, 60, 1, false, true, false},
    {220, 195, 150, 0, 58, 80, 130, 0, false, false, false},
    {185, 140, 20, 1, 55, 73, 100, 3, false, false, false},
    {210, 180, 100, 3, 59, 75, 80, 1, true, false, false},
    {230, 175, 70, 2, 64, 80, 140, 0, false, true, true},
    {200, 160, 45, 4, 53, 71, 120, 2, false, false, false},
    {190, 205, 90, 5, 57, 74, 50, 1, true, false, true},
    {215, 155, 35, 0, 61, 77, 160, 0, false, true, false},
    {205, 190, 130, 1, 54, 70, 95, 3, true, false, false},
    {195, 170, 55, 3, 60, 78, 75, 2, false, false, true},
    {225, 185, 25, 4, 56, 72, 145, 1, false, false, false},
};

QColor grey(int level) { return QColor(level, level, level); }

void drawHairBehind(QPainter& p, const Portrait& look, const QRectF& head) {
    p.setBrush(grey(look.hair));
    p.setPen(Qt::NoPen);
    if (look.hairStyle == 1) p.drawRoundedRect(head.adjusted(-10, -8, 10, 60), 30, 30);
    if (look.hairStyle == 4) p.drawEllipse(QPointF(head.center().x(), head.top() - 10), 18, 16);
}

void drawHairOnTop(QPainter& p, const Portrait& look, const QRectF& head) {
    p.setBrush(grey(look.hair));
    p.setPen(Qt::NoPen);
    const QRectF crown(head.left() - 3, head.top() - 8, head.width() + 6, head.height() * 0.5);
    switch (look.hairStyle) {
        case 2: {  // bald on top, a fringe around the sides
            p.drawRect(QRectF(head.left() - 2, head.top() + head.height() * 0.28, 8, 22));
            p.drawRect(QRectF(head.right() - 6, head.top() + head.height() * 0.28, 8, 22));
            break;
        }
        case 3: {  // curls
            for (int i = 0; i < 9; ++i) {
                const double a = M_PI + i * M_PI / 8;
                p.drawEllipse(QPointF(head.center().x() + std::cos(a) * head.width() * 0.48,
                                      head.top() + head.height() * 0.32 + std::sin(a) * head.height() * 0.42),
                              11, 11);
            }
            break;
        }
        case 5: {  // a side part
            QPainterPath path;
            path.moveTo(crown.left(), crown.bottom() - 6);
            path.quadTo(crown.left() + 4, crown.top() - 4, crown.center().x() + 10, crown.top());
            path.quadTo(crown.right() + 6, crown.top() + 6, crown.right(), crown.bottom() - 2);
            path.lineTo(crown.center().x() - 8, crown.top() + 14);
            path.closeSubpath();
            p.drawPath(path);
            break;
        }
        default:  // short, long and bun: a cap of hair over the brow
            p.drawChord(crown, 0, 180 * 16);
            p.drawRect(QRectF(crown.left(), crown.center().y() - 2, 7, head.height() * 0.22));
            p.drawRect(QRectF(crown.right() - 7, crown.center().y() - 2, 7, head.height() * 0.22));
            break;
    }
}

void drawFace(QPainter& p, const Portrait& look, const QRectF& head) {
    const double cx = head.center().x();
    const double eyes = head.top() + head.height() * 0.46;
    p.setPen(Qt::NoPen);
    p.setBrush(grey(look.skin - 15));
    p.drawEllipse(QPointF(head.left() + 1, eyes + 6), 6, 10);  // ears
    p.drawEllipse(QPointF(head.right() - 1, eyes + 6), 6, 10);
    QRadialGradient shade(head.center() - QPointF(8, 10), head.width());
    shade.setColorAt(0, grey(look.skin + 15 > 255 ? 255 : look.skin + 15));
    shade.setColorAt(1, grey(look.skin - 25));
    p.setBrush(shade);
    p.drawEllipse(head);
    p.setBrush(grey(40));
    p.drawEllipse(QPointF(cx - head.width() * 0.2, eyes), 4, 3);
    p.drawEllipse(QPointF(cx + head.width() * 0.2, eyes), 4, 3);
    p.setPen(QPen(grey(look.hair < 90 ? look.hair : 70), 2.5));
    p.drawLine(QPointF(cx - head.width() * 0.3, eyes - 9), QPointF(cx - head.width() * 0.1, eyes - 10));
    p.drawLine(QPointF(cx + head.width() * 0.1, eyes - 10), QPointF(cx + head.width() * 0.3, eyes - 9));
    p.setPen(QPen(grey(look.skin - 60), 1.8));
    p.drawLine(QPointF(cx, eyes + 4), QPointF(cx - 3, eyes + 16));
    p.drawLine(QPointF(cx - 3, eyes + 16), QPointF(cx + 3, eyes + 17));
    p.setPen(QPen(grey(look.skin - 80), 2));
    p.drawArc(QRectF(cx - 11, eyes + 18, 22, 10), 200 * 16, 140 * 16);
    if (look.glasses) {
        p.setPen(QPen(grey(25), 2));
        p.setBrush(Qt::NoBrush);
        p.drawEllipse(QPointF(cx - head.width() * 0.2, eyes), 10, 8);
        p.drawEllipse(QPointF(cx + head.width() * 0.2, eyes), 10, 8);
        p.drawLine(QPointF(cx - head.width() * 0.2 + 10, eyes), QPointF(cx + head.width() * 0.2 - 10, eyes));
    }
    p.setPen(Qt::NoPen);
    p.setBrush(grey(look.hair));
    if (look.moustache) p.drawRoundedRect(QRectF(cx - 12, eyes + 17, 24, 5), 2, 2);
    if (look.beard) {
        QPainterPath beard;
        beard.moveTo(head.left() + 4, eyes + 8);
        beard.quadTo(cx, head.bottom() + 22, head.right() - 4, eyes + 8);
        beard.quadTo(cx, head.bottom() - 4, head.left() + 4, eyes + 8);
        p.drawPath(beard);
    }
}

void drawClothes(QPainter& p, const Portrait& look, double cx, double neckTop) {
    p.setPen(Qt::NoPen);
    p.setBrush(grey(look.skin - 20));
    p.drawRect(QRectF(cx - 12, neckTop, 24, 30));  // neck
    QPainterPath shoulders;
    shoulders.moveTo(cx - 70, 200);
    shoulders.cubicTo(cx - 66, neckTop + 34, cx - 40, neckTop + 20, cx - 14, neckTop + 20);
    shoulders.lineTo(cx + 14, neckTop + 20);
    shoulders.cubicTo(cx + 40, neckTop + 20, cx + 66, neckTop + 34, cx + 70, 200);
    shoulders.closeSubpath();
    p.setBrush(grey(look.clothes));
    p.drawPath(shoulders);
    switch (look.collar) {
        case 0: {  // an open shirt collar
            p.setBrush(grey(235));
            QPolygonF left{{cx - 14, neckTop + 20}, {cx - 2, neckTop + 44}, {cx - 22, neckTop + 34}};
            QPolygonF right{{cx + 14, neckTop + 20}, {cx + 2, neckTop + 44}, {cx + 22, neckTop + 34}};
            p.drawPolygon(left);
            p.drawPolygon(right);
            break;
        }
        case 1: {  // a jacket over a white shirt and a tie
            p.setBrush(grey(240));
            p.drawPolygon(QPolygonF{{cx - 16, neckTop + 20}, {cx + 16, neckTop + 20}, {cx, neckTop + 70}});
            p.setBrush(grey(50));
            p.drawPolygon(QPolygonF{{cx - 4, neckTop + 24},
                                    {cx + 4, neckTop + 24},
                                    {cx + 6, neckTop + 66},
                                    {cx, neckTop + 74},
                                    {cx - 6, neckTop + 66}});
            break;
        }
        case 2:  // a round neck
            p.setBrush(grey(look.skin - 20));
            p.drawChord(QRectF(cx - 16, neckTop + 8, 32, 24), 180 * 16, 180 * 16);
            break;
        default:  // a turtleneck
            p.setBrush(grey(look.clothes - 20 < 0 ? 0 : look.clothes - 20));
            p.drawRoundedRect(QRectF(cx - 17, neckTop + 8, 34, 20), 6, 6);
            break;
    }
}

// A head-and-shoulders figure of 150 by 200 pixels, as a photograph of an ID shows one.
QImage portrait(const Portrait& look) {
    QImage image(150, 200, QImage::Format_RGB32);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    QLinearGradient backdrop(0, 0, 0, 200);
    backdrop.setColorAt(0, grey(look.background));
    backdrop.setColorAt(1, grey(look.background - 35));
    p.fillRect(image.rect(), backdrop);
    const double cx = 75;
    const QRectF head(cx - look.faceWidth / 2, 36, look.faceWidth, look.faceHeight);
    drawHairBehind(p, look, head);
    drawClothes(p, look, cx, head.bottom() - 6);
    drawFace(p, look, head);
    drawHairOnTop(p, look, head);
    p.end();
    return image.convertToFormat(QImage::Format_Grayscale8);
}

}  // namespace

bool drawShippedPictures(const QString& folder) {
    QDir().mkpath(folder);
    const QDir out(folder);
    bool written = card(QColor(222, 232, 246), QColor(30, 60, 120), QStringLiteral("SOCIAL SECURITY"),
                        QStringLiteral("TRAINING CARD"))
                       .save(out.filePath(QStringLiteral("SSN.jpg")), "JPG", 92) &&
                   card(QColor(236, 242, 224), QColor(50, 90, 40), QStringLiteral("INDIVIDUAL TAXPAYER"),
                        QStringLiteral("IDENTIFICATION NUMBER - TRAINING CARD"))
                       .save(out.filePath(QStringLiteral("ITIN.jpg")), "JPG", 92);
    for (int i = 0; i < 16; ++i)
        written =
            portrait(kPortraits[i]).save(out.filePath(QStringLiteral("P%1GS.jpg").arg(i + 1)), "JPG", 92) &&
            written;
    return written;
}
