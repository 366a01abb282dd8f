// How a label lays out its caption: a long text whose lines each open with a blank -- the copy notices of
// the forms -- wraps flush with its first line.
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <vector>

#include "gui_fixture.h"
#include "ui/form_painter.h"

namespace lw::ui::test {
namespace {

// The leftmost dark column of each band of text rows, from the top of the picture down.
std::vector<int> lineStarts(const QImage& image) {
    std::vector<int> starts;
    bool inLine = false;
    int start = image.width();
    for (int y = 0; y < image.height(); ++y) {
        int first = image.width();
        for (int x = 0; x < image.width(); ++x)
            if (qGray(image.pixel(x, y)) < 128) {
                first = x;
                break;
            }
        if (first < image.width()) {
            start = std::min(start, first);
            inLine = true;
        } else if (inLine) {
            starts.push_back(start);
            start = image.width();
            inLine = false;
        }
    }
    if (inLine) starts.push_back(start);
    return starts;
}

QImage picture(const Form& form, const Control& label) {
    QImage image(formSize(form, kScreenScale), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    FormPainter(kScreenScale).paintControl(painter, label);
    return image;
}

class LabelText : public GuiTest {
protected:
    Form form{"TF_Labels"};
    Control& label = form.add(ControlKind::Label, "RTL3");

    void SetUp() override {
        GuiTest::SetUp();
        form.width = 3000;
        form.height = 1500;
        label.place(150, 60, 1500, 1400);
        label.foreColor = 0;
    }
};

TEST_F(LabelText, ALongTextWhoseLinesOpenWithABlankWrapsFlush) {
    // Each word fills a line: the second paragraph wraps once.
    label.caption = " WWWWWW\r\n WWWWWW WWWWWW";
    const std::vector<int> starts = lineStarts(picture(form, label));
    ASSERT_EQ(starts.size(), 3u);
    EXPECT_EQ(starts[1], starts[0]);
    EXPECT_EQ(starts[2], starts[0]) << "the wrapped line starts left of the others";
    // The blank still shows as an indent from the label's edge.
    label.caption = "WWWWWW";
    EXPECT_GT(starts[0], lineStarts(picture(form, label)).front());
}

TEST_F(LabelText, ACaptionWithoutLeadingBlanksKeepsItsOwnIndents) {
    label.caption = "WWWWWW\r\n WWWWWW";
    const std::vector<int> starts = lineStarts(picture(form, label));
    ASSERT_EQ(starts.size(), 2u);
    EXPECT_GT(starts[1], starts[0]);
}

}  // namespace
}  // namespace lw::ui::test
