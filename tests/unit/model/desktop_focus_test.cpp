#include <gtest/gtest.h>

#include "model/app_error.h"
#include "model/desktop.h"
#include "recording_form.h"

namespace lw {
namespace {

using testing::NullUi;
using testing::RecordingForm;

struct FocusTest : ::testing::Test {
    NullUi ui;
    Desktop desktop{ui};
    RecordingForm* form = nullptr;

    void SetUp() override {
        auto owned = std::make_unique<RecordingForm>();
        form = owned.get();
        for (int i = 0; i < 4; ++i) {
            Control& box = form->add(ControlKind::TextBox, "Text1", i);
            box.tabIndex = 10 - i;  // tab order runs against creation order
        }
        desktop.load(std::move(owned));
        form->events.clear();
    }
    Control& box(int i) { return *form->find("Text1", i); }
};

TEST_F(FocusTest, TabFollowsTabIndexAndWrapsAround) {
    desktop.setFocus(box(3));
    desktop.tab(false);
    EXPECT_EQ(desktop.focus(), &box(2));
    desktop.tab(false);
    desktop.tab(false);
    EXPECT_EQ(desktop.focus(), &box(0));
    desktop.tab(false);
    EXPECT_EQ(desktop.focus(), &box(3));
    desktop.tab(true);
    EXPECT_EQ(desktop.focus(), &box(0));
}

TEST_F(FocusTest, TabSkipsHiddenDisabledAndNonStopFields) {
    box(2).visible = false;
    box(1).tabStop = false;
    box(0).enabled = false;
    desktop.setFocus(box(3));
    desktop.tab(false);
    EXPECT_EQ(desktop.focus(), &box(3));
}

TEST_F(FocusTest, LeavingRunsValidateThenLostFocusThenGotFocus) {
    desktop.setFocus(box(3));
    form->events.clear();
    desktop.tab(false);
    EXPECT_EQ(form->events,
              (std::vector<std::string>{"Validate Text1(3)", "LostFocus Text1(3)", "GotFocus Text1(2)"}));
}

TEST_F(FocusTest, CancelInValidateKeepsTheFocus) {
    desktop.setFocus(box(3));
    form->refuseToLeave = "Text1(3)";
    form->events.clear();
    desktop.tab(false);
    EXPECT_EQ(desktop.focus(), &box(3));
    EXPECT_EQ(form->events, (std::vector<std::string>{"Validate Text1(3)"}));
    desktop.click(box(0));
    EXPECT_EQ(desktop.focus(), &box(3));
}

TEST_F(FocusTest, AClickFocusesAFieldWithoutATabStop) {
    box(1).tabStop = false;
    desktop.click(box(1));
    EXPECT_EQ(desktop.focus(), &box(1));
}

TEST_F(FocusTest, AFocusRequestInsideAHandlerWaitsForItToReturn) {
    form->onFocusHook = [&](Control& c) {
        if (c.index == 2) {
            desktop.setFocus(box(0));
            // Still inside the handler: the move has not happened yet.
            form->events.push_back(desktop.focus() == &box(2) ? "still on 2" : "moved early");
        }
    };
    desktop.setFocus(box(2));
    EXPECT_EQ(desktop.focus(), &box(0));
    EXPECT_EQ(form->events, (std::vector<std::string>{"GotFocus Text1(2)", "still on 2", "Validate Text1(2)",
                                                      "LostFocus Text1(2)", "GotFocus Text1(0)"}));
}

TEST(ModalFocus, AModalBoxTakesTheFocusWithoutTheFieldBeneathLosingIt) {
    struct ModalUi : NullUi {
        Desktop* desktop = nullptr;
        bool boxHadTheFocus = false;
        void runModal(Form& box) override {
            Control& ok = *box.find("cmd1");
            desktop->setFocus(ok);
            boxHadTheFocus = desktop->focus() == &ok;
            box.unload();
        }
    } ui;
    Desktop desktop{ui};
    ui.desktop = &desktop;
    auto owned = std::make_unique<RecordingForm>();
    RecordingForm* form = owned.get();
    Control& field = form->add(ControlKind::TextBox, "Text1", 0);
    desktop.load(std::move(owned));
    desktop.setFocus(field);
    form->events.clear();

    auto box = std::make_unique<RecordingForm>("F9_BOX");
    box->isChild = false;
    box->add(ControlKind::CommandButton, "cmd1");
    Form& loaded = desktop.load(std::move(box));
    desktop.showModal(loaded);

    EXPECT_TRUE(ui.boxHadTheFocus);
    EXPECT_EQ(desktop.focus(), &field);
    EXPECT_TRUE(form->events.empty());
    EXPECT_EQ(desktop.topModal(), nullptr);
}

TEST_F(FocusTest, UnloadingTheActiveChildLeavesNoFocus) {
    desktop.setFocus(box(1));
    form->unload();
    EXPECT_EQ(desktop.focus(), nullptr);
    EXPECT_EQ(desktop.activeChild(), nullptr);
}

TEST(FormLookup, NamesAreBlindToCaseAndArraysComeInIndexOrder) {
    Form form("TF_X");
    form.add(ControlKind::TextBox, "Text1", 2);
    form.add(ControlKind::TextBox, "Text1", 0);
    form.add(ControlKind::Label, "labelMisc");
    EXPECT_NE(form.find("TEXT1", 2), nullptr);
    EXPECT_NE(form.find("LabelMisc"), nullptr);
    EXPECT_EQ(form.find("Text1"), nullptr);
    auto elements = form.arrayOf("text1");
    ASSERT_EQ(elements.size(), 2u);
    EXPECT_EQ(elements[0]->index, 0);
    EXPECT_EQ(elements[1]->index, 2);
    EXPECT_THROW(form.at("Text1", 7), AppError);
    EXPECT_EQ(elements[1]->key(), "Text1(2)");
}

}  // namespace
}  // namespace lw
