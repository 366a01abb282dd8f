// In the window an amount whose text carries no "$" shows the sign its box prints, left of its editor;
// an amount that writes its own shows none there, and a hidden field takes its sign with it.
#include <QApplication>
#include <QImage>
#include <QTest>

#include "gui_fixture.h"
#include "ui/form_painter.h"

namespace lw::ui::test {
namespace {

class BoxDollarSignView : public TwoFieldsViewTest {
protected:
    // The window drawn afresh as it shows now, the editors included.
    QImage window() {
        for (int i = 0; i < 3; ++i) QApplication::processEvents();
        QTest::qWait(20);
        return view_->grab().toImage();
    }
    bool inkIn(const QImage& picture, const QRect& area) {
        for (int y = area.top(); y <= area.bottom(); ++y)
            for (int x = area.left(); x <= area.right(); ++x)
                if (qGray(picture.pixel(x, y)) < 96) return true;
        return false;
    }
    // The view made again for a field given its type, as a form's fields are typed when it opens.
    void reopenWith(const char* tag) {
        second_->tag = tag;
        view_ = std::make_unique<FormView>(*form_);
        show(*view_);
    }
};

TEST_F(BoxDollarSignView, AnAmountWithoutItsOwnSignShowsTheBoxsSign) {
    const QRect sign = boxDollarSignRect(*second_, kScreenScale);
    reopenWith("SMONEY");
    EXPECT_TRUE(inkIn(window(), sign));
    second_->visible = false;
    refreshAll();
    EXPECT_FALSE(inkIn(window(), sign)) << "the sign of a hidden field stays";
}

TEST_F(BoxDollarSignView, AnAmountThatWritesItsOwnSignShowsNoneBesideIt) {
    reopenWith("MONEY");
    EXPECT_FALSE(inkIn(window(), boxDollarSignRect(*second_, kScreenScale)));
}

}  // namespace
}  // namespace lw::ui::test
