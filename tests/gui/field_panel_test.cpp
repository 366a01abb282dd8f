// The panels of one-line fields are copied from a sample of their height; a copy must be the very
// picture the application's style draws for the field.
#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QStyleOptionFrame>

#include "ui/field_panel_style.h"

namespace lw::ui::test {
namespace {

QImage panelDrawnBy(const QStyle& style, const QStyleOptionFrame& option) {
    QImage image(option.rect.right() + 6, option.rect.bottom() + 6, QImage::Format_ARGB32_Premultiplied);
    // The ground of a form under its field, which the corners of the panel let through.
    image.fill(QColor(0xE8, 0xE4, 0xD8));
    QPainter painter(&image);
    style.drawPrimitive(QStyle::PE_PanelLineEdit, &option, &painter, nullptr);
    return image;
}

QStyleOptionFrame fieldOption(int width, int height, QStyle::State state, const QColor& base) {
    QStyleOptionFrame option;
    option.rect = QRect(3, 4, width, height);
    option.palette = QApplication::palette();
    option.palette.setColor(QPalette::Base, base);
    option.state = state | QStyle::State_Sunken;
    option.lineWidth = 1;
    return option;
}

TEST(FieldPanelStyle, ACopiedPanelIsThePanelTheStyleDraws) {
    FieldPanelStyle* copying = FieldPanelStyle::forFields();
    ASSERT_NE(copying, nullptr) << "the offscreen platform's style is Fusion, whose panels are copied";
    const QStyle& direct = *QApplication::style();
    const QStyle::State plain = QStyle::State_Enabled | QStyle::State_Active;
    const std::pair<QStyle::State, QColor> looks[] = {
        {plain, Qt::white},
        {plain | QStyle::State_HasFocus, QColor(0xFF, 0xFF, 0xC0)},
        {plain | QStyle::State_ReadOnly, QColor(0xE0, 0xE0, 0xE0)},
        {QStyle::State_None, Qt::white},
    };
    int compared = 0;
    for (const auto& [state, base] : looks) {
        for (int height : {13, 17, 18, 21, 34}) {
            for (int width = 16; width <= 420; width += 7) {
                const QStyleOptionFrame option = fieldOption(width, height, state, base);
                ASSERT_EQ(panelDrawnBy(*copying, option), panelDrawnBy(direct, option))
                    << "a panel of " << width << "x" << height << " in state " << int(state);
                ++compared;
            }
        }
    }
    EXPECT_GT(compared, 1000);
}

}  // namespace
}  // namespace lw::ui::test
