#include <gtest/gtest.h>

#include <QImage>
#include <optional>
#include <string>
#include <vector>

#include "drawn_forms.h"
#include "model/containers.h"
#include "qt_offscreen.h"
#include "ui/clipboard_picture.h"
#include "ui/form_painter.h"

namespace lw {
namespace {

// The clipboard of these tests holds the very picture the window would put there.
class PictureUi : public testing::TestUi {
public:
    void copyPictureToClipboard(Form& form) override { picture = ui::renderForm(form); }
    std::optional<QImage> picture;
};

const auto* const kQt = testing::addQtOffscreen();

// What the operator could see change on a control: its place, size, colours, visibility and text. The
// back colour of a see-through label shows nothing.
struct Look {
    std::string key;
    int left, top, width, height;
    Color back, fore;
    bool visible;
    std::string text, caption;
    bool operator==(const Look& o) const {
        return key == o.key && left == o.left && top == o.top && width == o.width && height == o.height &&
               back == o.back && fore == o.fore && visible == o.visible && text == o.text &&
               caption == o.caption;
    }
};

Look lookOf(const Control& c) {
    const bool seeThrough = (c.kind == ControlKind::Label || c.kind == ControlKind::CheckLabel) && !c.opaque;
    return {c.key(),     c.left,    c.top,  c.width,  c.height, seeThrough ? 0 : c.backColor,
            c.foreColor, c.visible, c.text, c.caption};
}

bool isK1(const std::string& form) { return form.rfind("TF_K1", 0) == 0; }

// What the put-back of a clip is told to leave otherwise than it found it.
bool toldToChange(const std::string& form, const Control& c) {
    // The reset gives the 1099-B's out-of-scope boxes the set-up grey of their type.
    if (form == "TF_1099B" && c.tag == "OUT OF SCOPE") return true;
    // The 1099-A's put-back recolours its labels only: its first field, its status line and the white
    // label of box 1 stay as the clip left them.
    if (form == "TF_1099A" && (c.key() == "Text1(0)" || c.name == "labelMisc" || c.key() == "Label1(6)"))
        return true;
    // The K-1's put-back gives back its tab strip and panels only: its status line stays hidden and the
    // field in focus keeps the white of the picture.
    if (isK1(form) && (c.name == "labelMisc" || c.key() == "Text1(0)")) return true;
    return false;
}

std::vector<Look> lookOf(const Form& form) {
    std::vector<Look> looks;
    for (const auto& c : form.controls())
        if (!toldToChange(form.name(), *c)) looks.push_back(lookOf(*c));
    return looks;
}

int bottomOf(const Form& form, const char* name, int index = kNoIndex) {
    const Control& c = form.at(name, index);
    return c.top + c.height;
}

// The height the document is cut to, by the form's own border or last label.
int cutHeight(const Form& form) {
    // A K-1 is cut to the half on show, lifted to the top.
    if (isK1(form.name())) return form.at("Pic1L").height;
    if (form.name() == "TF_SSA1099") return bottomOf(form, "Label1", 33);
    if (form.name() == "TF_RRB1099") return bottomOf(form, "LabelForm", 3);
    // These keep their whole height: only their header labels are whitened.
    if (form.name() == "TF_1099B" || form.name() == "TF_1099R" || form.name() == "TF_1098E" ||
        form.name() == "TF_1098T")
        return form.height;
    if (form.find("myBorder")) return bottomOf(form, "myBorder");
    if (form.find("Shape5")) return bottomOf(form, "Shape5");
    return form.height;
}

class ClipEachForm : public testing::EachDrawnForm {
protected:
    void SetUp() override { open(ui); }
    Desktop& desktop() { return test.program->desktop; }

    PictureUi ui;
};

TEST_P(ClipEachForm, ThePictureIsTheDocumentCutToItsBorderAndTheFormComesBackAsItWas) {
    Control& first = form->at("Text1", 0);
    desktop().setFocus(first);
    desktop().typeCharacter('1');
    first.select(0, 1);
    const std::vector<Look> before = lookOf(*form);
    const int width = form->width;
    const int height = form->height;
    const int expectedHeight = cutHeight(*form);

    desktop().chooseMenu("mnuControlClip");

    ASSERT_TRUE(ui.picture.has_value());
    EXPECT_EQ(ui.picture->width(), ui::toPixels(width, ui::kScreenScale));
    EXPECT_EQ(ui.picture->height(), ui::toPixels(expectedHeight, ui::kScreenScale));
    // The field in focus, with its selection, shows white on the picture.
    QRect field = ui::controlRect(first, ui::kScreenScale);
    // The half on show of a K-1 stands at the top of the picture, without its tab strip.
    if (isK1(form->name())) field.translate(0, -ui::toPixels(form->at("Pic1L").top, ui::kScreenScale));
    const QPoint inside(field.right() - 3, field.center().y());
    EXPECT_EQ(ui.picture->pixelColor(inside), QColor(Qt::white)) << "at " << inside.x() << "," << inside.y();

    EXPECT_EQ(form->width, width);
    EXPECT_EQ(form->height, height);
    const std::vector<Look> after = lookOf(*form);
    ASSERT_EQ(after.size(), before.size());
    for (std::size_t i = 0; i < after.size(); ++i)
        EXPECT_TRUE(after[i] == before[i])
            << after[i].key << " changed: back " << std::hex << before[i].back << " -> " << after[i].back
            << std::dec << ", visible " << before[i].visible << " -> " << after[i].visible << ", text \""
            << before[i].text << "\" -> \"" << after[i].text << "\"";
    EXPECT_EQ(desktop().focus(), &first);
    EXPECT_TRUE(ui.reports.empty()) << ui.reports.front();
}

TEST_P(ClipEachForm, AK1OnItsSecondTabClipsTheBottomHalfAndGetsItsTabStripBack) {
    if (!isK1(form->name())) GTEST_SKIP() << "only the K-1 forms stand on tabs";
    Control& tabs = form->at("SSTab1");
    desktop().choose(tabs, tabs.items[1]);
    ASSERT_EQ(tabOf(tabs), 1);
    const Control& left = form->at("Pic2L");
    const Control& right = form->at("Pic2R");
    const int panelTop = left.top;

    desktop().chooseMenu("mnuControlClip");

    ASSERT_TRUE(ui.picture.has_value());
    EXPECT_EQ(ui.picture->width(), ui::toPixels(left.width + right.width, ui::kScreenScale));
    EXPECT_EQ(ui.picture->height(), ui::toPixels(left.height, ui::kScreenScale));
    // The top row of the picture is the Bottom half's own border, not the tab strip.
    EXPECT_EQ(ui.picture->pixelColor(ui::toPixels(left.width / 2, ui::kScreenScale), 0), QColor(Qt::white));
    EXPECT_EQ(tabOf(tabs), 1);
    EXPECT_EQ(tabs.tabHeight, 295);
    EXPECT_EQ(left.top, panelTop);
    EXPECT_EQ(right.top, panelTop);
    EXPECT_EQ(form->at("Pic1L").top, panelTop);
    EXPECT_TRUE(ui.reports.empty()) << ui.reports.front();
}

INSTANTIATE_TEST_SUITE_P(DrawnForms, ClipEachForm, ::testing::ValuesIn(testing::drawnForms()),
                         [](const ::testing::TestParamInfo<std::string>& info) { return info.param; });

}  // namespace
}  // namespace lw
