#include "diagnostics/picture_capture.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "diagnostics_fixture.h"

namespace lw::test {
namespace {

class FailingCopyUi : public FakeUi {
public:
    void copyPictureToClipboard(Form&) override {
        ++attempts;
        throw std::runtime_error("no clipboard");
    }
    int attempts = 0;
};

TEST_F(DiagnosticsTest, PictureOfTheFormGoesToTheClipboard) {
    Form& w2 = prog().desktop.load(std::make_unique<Form>("TF_W2"));
    copyEntirePicture(w2);
    ASSERT_EQ(ui.pictures.size(), 1u);
    EXPECT_EQ(ui.pictures[0].formName, "TF_W2");
    // No waits around the copy.
    EXPECT_TRUE(platform.sleeps.empty());
}

TEST(copyEntirePicture, FailedCopyReportsNothing) {
    FailingCopyUi ui;
    FakePlatform platform;
    Program program(ui, platform);
    Form& w2 = program.desktop.load(std::make_unique<Form>("TF_W2"));
    EXPECT_NO_THROW(copyEntirePicture(w2));
    EXPECT_EQ(ui.attempts, 1);
    EXPECT_TRUE(ui.modalForms.empty());
}

}  // namespace
}  // namespace lw::test
