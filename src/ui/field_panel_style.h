#pragma once
// The style of the form's one-line fields: the application's own style, with the panel of each field
// drawn once per size, state and colours and then copied. A form holds a hundred fields of a few sizes,
// and the Fusion style strokes each panel's rounded outline afresh, which made the opening of a large
// form slow.

#include <QHash>
#include <QPixmap>
#include <QProxyStyle>
#include <QStyleOptionFrame>
#include <array>

namespace lw::ui {

class FieldPanelStyle : public QProxyStyle {
    Q_OBJECT
public:
    // The style for the fields, or none where the application's style is not one whose panels this
    // copy knows to hold still (a style that animates its fields draws them itself).
    static FieldPanelStyle* forFields();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;

    // Everything a panel's pixels depend on: its size, the device's ratio, the state, the frame and the
    // colours of the palette's current group.
    struct PanelKey {
        int width = 0;
        int height = 0;
        qreal ratio = 1;
        uint state = 0;
        int lineWidth = 0;
        int midLineWidth = 0;
        int features = 0;
        int frameShape = 0;
        int direction = 0;
        std::array<QRgb, QPalette::NColorRoles> colours{};
        bool operator==(const PanelKey& other) const;
    };

private:
    explicit FieldPanelStyle(QStyle* base);
    // The panel at a narrow width, drawn by the application's style once for its height, state, frame and
    // colours.
    QPixmap sampleOf(const QStyleOptionFrame& frame, qreal ratio, const QWidget* widget) const;

    mutable QHash<PanelKey, QPixmap> panels_;
};

size_t qHash(const FieldPanelStyle::PanelKey& key, size_t seed = 0);

}  // namespace lw::ui
