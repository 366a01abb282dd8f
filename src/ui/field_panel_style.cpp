#include "ui/field_panel_style.h"

#include <QApplication>
#include <QPainter>
#include <QPointer>
#include <QStyleFactory>
#include <QStyleOptionFrame>

namespace lw::ui {

namespace {

// So many kinds of panel only come from colours set field by field: then the copies start again.
constexpr int kMostPanels = 256;

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

void FieldPanelStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                    const QWidget* widget) const {
    const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    if (element != PE_PanelLineEdit || !frame || !painter || !copiable(*frame, *painter)) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    const PanelKey key = keyOf(*frame, painter->device()->devicePixelRatio());
    QPixmap panel = panels_.value(key);
    if (panel.isNull()) {
        panel = QPixmap(frame->rect.size() * key.ratio);
        panel.setDevicePixelRatio(key.ratio);
        panel.fill(Qt::transparent);
        QStyleOptionFrame atOrigin = *frame;
        atOrigin.rect.moveTopLeft(QPoint(0, 0));
        QPainter onPanel(&panel);
        QProxyStyle::drawPrimitive(element, &atOrigin, &onPanel, widget);
        onPanel.end();
        if (panels_.size() >= kMostPanels) panels_.clear();
        panels_.insert(key, panel);
    }
    painter->drawPixmap(frame->rect.topLeft(), panel);
}

}  // namespace lw::ui
