// The railroad statement in the window: leaving an amount shows the worked-out net at once, and the
// focus goes where the operator sent it.
#include <QLineEdit>
#include <QTest>

#include "forms/form_rrb1099.h"
#include "gui_fixture.h"
#include "ui/form_view.h"

namespace lw::ui::test {
namespace {

class RrbWindowTest : public FormViewTest<FormRrb1099> {
protected:
    void SetUp() override {
        FormViewTest::SetUp();
        desktop().setFocus(form_->at("Text1", 4));
        refreshAll();
    }
};

TEST_F(RrbWindowTest, TheNetShowsAndTheTabGoesOn) {
    ASSERT_EQ(view_->focusWidget(), editor("Text1_4"));
    type(view_.get(), QStringLiteral("5000"));
    press(view_.get(), Qt::Key_Tab);
    EXPECT_EQ(view_->focusWidget(), editor("Text1_5"));
    EXPECT_EQ(editor("Text1_6")->text(), QStringLiteral("$5,000.00"));
    type(view_.get(), QStringLiteral("1000"));
    press(view_.get(), Qt::Key_Tab);
    EXPECT_EQ(desktop().focus(), &form_->at("Text1", 7));
    EXPECT_EQ(view_->focusWidget(), editor("Text1_7")) << "box 5 is computed and no tab stop";
    EXPECT_EQ(editor("Text1_6")->text(), QStringLiteral("$4,000.00"));
    EXPECT_EQ(editor("Text1_5")->text(), QStringLiteral("$1,000.00"));
}

TEST_F(RrbWindowTest, AClickOutOfAnAmountLandsWhereItWasMade) {
    type(view_.get(), QStringLiteral("700"));
    QTest::mouseClick(editor("Text1_10"), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(desktop().focus(), &form_->at("Text1", 10));
    EXPECT_EQ(view_->focusWidget(), editor("Text1_10"));
    EXPECT_EQ(editor("Text1_6")->text(), QStringLiteral("$700.00"));
    // From the last amount of the upper statement the tab goes on into the lower one.
    QTest::mouseClick(editor("Text1_12"), Qt::LeftButton, {}, QPoint(5, 5));
    press(view_.get(), Qt::Key_Tab);
    EXPECT_EQ(view_->focusWidget(), editor("Text1_17"));
}

TEST_F(RrbWindowTest, AClickIntoTheCopyOfTheLowerStatementPassesTheFocusOn) {
    QTest::mouseClick(editor("Text1_15"), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(desktop().focus(), &form_->at("Text1", 17));
    EXPECT_EQ(view_->focusWidget(), editor("Text1_17"));
}

}  // namespace
}  // namespace lw::ui::test
