#include "ui/field_panel_style.h"

#include <QApplication>
#include <QPainter>
#include <QPointer>
#include <QStyleFactory>
#include <QStyleOptionFrame>
#include <cmath>

namespace lw::ui {

namespace {

// So many kinds of panel only come from colours set field by field: then the samples start again.
constexpr int kMostPanels = 256;
// The width of a sample panel, and of each end whose columns differ from the middle's: a rounded corner
// and the end of the inner shadow lie within a few pixels of the edge.
constexpr int kSampleWidth = 21;
constexpr int kEndWidth = 10;

// Only flat colours and a painter that copies pixels as they are: anything else is drawn directly.
bool copiable(const QStyleOptionFrame& frame, const QPainter& painter) {
    for (QPalette::ColorRole role : {QPalette::Base, QPalette::Window, QPalette::Highlight})
        if (frame.palette.brush(role).style() != Qt::SolidPattern) return false;
    return painter.transform().type() <= QTransform::TxTranslate && painter.opacity() == 1.0 &&
           painter.compositionMode() == QPainter::CompositionMode_SourceOver && painter.device() &&
           !frame.rect.isEmpty();
}

FieldPanelStyle::PanelKey keyOf(const QStyleOptionFrame& frame, qreal ratio) {
    FieldPanelStyle::PanelKey key;
    key.width = frame.rect.width();
    key.height = frame.rect.height();
    key.ratio = ratio;
    key.state = static_cast<uint>(frame.state);
    key.lineWidth = frame.lineWidth;
    key.midLineWidth = frame.midLineWidth;
    key.features = static_cast<int>(frame.features);
    key.frameShape = static_cast<int>(frame.frameShape);
    key.direction = static_cast<int>(frame.direction);
    for (int role = 0; role < QPalette::NColorRoles; ++role)
        key.colours[static_cast<std::size_t>(role)] =
            frame.palette.color(static_cast<QPalette::ColorRole>(role)).rgba();
    return key;
}

}  // namespace

bool FieldPanelStyle::PanelKey::operator==(const PanelKey& o) const {
    return width == o.width && height == o.height && ratio == o.ratio && state == o.state &&
           lineWidth == o.lineWidth && midLineWidth == o.midLineWidth && features == o.features &&
           frameShape == o.frameShape && direction == o.direction && colours == o.colours;
}

size_t qHash(const FieldPanelStyle::PanelKey& key, size_t seed) {
    seed = qHashMulti(seed, key.width, key.height, key.ratio, key.state, key.lineWidth, key.midLineWidth,
                      key.features, key.frameShape, key.direction);
    return qHashRange(key.colours.begin(), key.colours.end(), seed);
}

FieldPanelStyle::FieldPanelStyle(QStyle* base) : QProxyStyle(base) {}

FieldPanelStyle* FieldPanelStyle::forFields() {
    static QPointer<FieldPanelStyle> style;
    if (style) return style;
    const QString name = QApplication::style()->name();
    if (name.compare(QLatin1String("fusion"), Qt::CaseInsensitive) != 0) return nullptr;
    style = new FieldPanelStyle(QStyleFactory::create(name));
    // The style goes with the application, after the last field.
    style->setParent(qApp);
    return style;
}

QPixmap FieldPanelStyle::sampleOf(const QStyleOptionFrame& frame, qreal ratio, const QWidget* widget) const {
    QStyleOptionFrame sample = frame;
    sample.rect = QRect(0, 0, kSampleWidth, frame.rect.height());
    const PanelKey key = keyOf(sample, ratio);
    QPixmap panel = panels_.value(key);
    if (!panel.isNull()) return panel;
    panel = QPixmap(sample.rect.size() * ratio);
    panel.setDevicePixelRatio(ratio);
    panel.fill(Qt::transparent);
    QPainter onPanel(&panel);
    QProxyStyle::drawPrimitive(PE_PanelLineEdit, &sample, &onPanel, widget);
    onPanel.end();
    if (panels_.size() >= kMostPanels) panels_.clear();
    panels_.insert(key, panel);
    return panel;
}

void FieldPanelStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                    const QWidget* widget) const {
    const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    if (element != PE_PanelLineEdit || !frame || !painter || !copiable(*frame, *painter)) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    const qreal ratio = painter->device()->devicePixelRatio();
    const QRect& r = frame->rect;
    // A panel is its two ends and a middle whose every column is the same: one sample of the panel's
    // height serves every width. Between device pixels (a ratio of 1.5) the ends fall differently.
    if (ratio != std::floor(ratio) || r.width() < kSampleWidth) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    const QPixmap sample = sampleOf(*frame, ratio, widget);
    const int device = static_cast<int>(ratio);
    const int middle = r.width() - 2 * kEndWidth;
    painter->save();
    painter->setRenderHint(QPainter::SmoothPixmapTransform, false);
    painter->drawPixmap(QRect(r.left(), r.top(), kEndWidth, r.height()), sample,
                        QRect(0, 0, kEndWidth * device, sample.height()));
    painter->drawPixmap(QRect(r.left() + kEndWidth, r.top(), middle, r.height()), sample,
                        QRect(kEndWidth * device, 0, device, sample.height()));
    painter->drawPixmap(QRect(r.right() + 1 - kEndWidth, r.top(), kEndWidth, r.height()), sample,
                        QRect((kSampleWidth - kEndWidth) * device, 0, kEndWidth * device, sample.height()));
    painter->restore();
}

}  // namespace lw::ui
