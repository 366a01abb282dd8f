#include "diagnostics/error_logger.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "diagnostics/version.h"
#include "diagnostics_fixture.h"
#include "model/app_error.h"

namespace lw::test {
namespace {

class DataErrorNumbers : public DiagnosticsTest, public ::testing::WithParamInterface<int> {};

TEST_P(DataErrorNumbers, GoToTheBox) {
    logError("M9_Test:Proc", GetParam(), "bad value");
    EXPECT_EQ(ui.modalForms, std::vector<std::string>{"F9_MBX"});
    ASSERT_TRUE(lastMessageBox().has_value());
    EXPECT_EQ(lastMessageBox()->title, "Data Error");
    EXPECT_FALSE(lastErrorReport().has_value());
}

INSTANTIATE_TEST_SUITE_P(Bounds, DataErrorNumbers, ::testing::Values(800, 850, 899));

class ProgramErrorNumbers : public DiagnosticsTest, public ::testing::WithParamInterface<int> {};

TEST_P(ProgramErrorNumbers, GoToTheReportForm) {
    logError("M9_Test:Proc", GetParam(), "fault");
    EXPECT_EQ(ui.modalForms, std::vector<std::string>{"F8_ErrLog"});
    EXPECT_FALSE(lastMessageBox().has_value());
    ASSERT_TRUE(lastErrorReport().has_value());
    EXPECT_EQ(lastErrorReport()->number, std::to_string(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Bounds, ProgramErrorNumbers, ::testing::Values(799, 900, 0, -1, -800, INT_MIN, 5));

TEST_F(DiagnosticsTest, DataErrorBoxHasThreeLinesEndedByBareCarriageReturns) {
    logError("M4_FileCode:Read_File", 812, "Record is not a form");
    ASSERT_EQ(ui.boxes.size(), 1u);
    const SeenBox& box = ui.boxes[0];
    EXPECT_EQ(box.record.title, "Data Error");
    EXPECT_EQ(box.record.number, 800);
    EXPECT_EQ(box.record.message,
              "Procedure Name:        M4_FileCode:Read_File\r"
              "Error Number:          812\r"
              "Error Description:     Record is not a form\r");
    EXPECT_EQ(box.record.message.find("Message Number"), std::string::npos);
    EXPECT_EQ(box.record.message.find('\n'), std::string::npos);
    // The box turns each carriage return into a line; the one that ends the text leaves an empty line.
    EXPECT_EQ(box.record.shownText,
              "Procedure Name:        M4_FileCode:Read_File\r"
              "Error Number:          812\r"
              "Error Description:     Record is not a form\r");
    const int lines = 4;
    EXPECT_EQ(box.labelHeight, MessageBoxForm::kLabelDesignHeight * lines + 100);
    EXPECT_EQ(box.height,
              MessageBoxForm::kDesignHeight + MessageBoxForm::kLabelDesignHeight * (lines - 1) + 100);
    EXPECT_EQ(box.record.buttons, (std::array<std::string, 4>{"OK", "", "", ""}));
    EXPECT_EQ(box.record.defaultButton, MessageBoxButton::First);
    EXPECT_FALSE(box.record.showText);
    EXPECT_FALSE(box.text1Visible);
    EXPECT_EQ(box.record.answer, MessageBoxButton::None);
    ASSERT_TRUE(lastMessageBox().has_value());
    EXPECT_EQ(lastMessageBox()->answer, MessageBoxButton::First);
    EXPECT_EQ(lastMessageBox()->answerCaption(), "OK");
}

TEST_F(DiagnosticsTest, ReportFormCarriesProgramModuleNumberDescriptionAndTime) {
    ui.queue([&](Form& form) {
        auto& report = dynamic_cast<ErrorReportForm&>(form);
        EXPECT_EQ(report.caption, "Error in Ledgerwick v.25.1.5");
        EXPECT_EQ(report.Label2[0]->caption, "Ledgerwick v.25.1.5");
        EXPECT_EQ(report.Label2[1]->caption, "M4_FileCode:Read_File");
        EXPECT_EQ(report.Label2[3]->caption, "53");
        EXPECT_EQ(report.Label2[4]->caption, "File not found");
        EXPECT_EQ(report.Label2[5]->caption, "03/07/2025 2:05:09 PM");
        report.unload();
    });
    logError("M4_FileCode:Read_File", 53, "File not found");
    ASSERT_TRUE(lastErrorReport().has_value());
    EXPECT_EQ(lastErrorReport()->program, "Ledgerwick v.25.1.5");
    EXPECT_EQ(lastErrorReport()->dateTime, "03/07/2025 2:05:09 PM");
}

class FormTextTest : public DiagnosticsTest {
protected:
    Form& loadFrame(const std::string& caption) {
        auto frame = std::make_unique<Form>("F0_MDI");
        frame->isChild = false;
        frame->caption = caption;
        Form& loaded = prog().desktop.load(std::move(frame));
        prog().desktop.setFrame(loaded);
        return loaded;
    }
    Form& loadChild(const std::string& name) { return prog().desktop.load(std::make_unique<Form>(name)); }
};

TEST_F(FormTextTest, CaptionWithEqualsGivesNameAndCaptionOnTwoLines) {
    loadFrame("Ledgerwick 25 =   W-2 Wage and Tax Statement  ");
    prog().g.document.currentForm = &loadChild("TF_W2");
    EXPECT_EQ(errorFormText(), "Name    = TF_W2\r\nCaption = W-2 Wage and Tax Statement");
    logError("TF_W2:Compute", 6, "Overflow");
    ASSERT_TRUE(lastErrorReport().has_value());
    EXPECT_EQ(lastErrorReport()->form, "Name    = TF_W2\r\nCaption = W-2 Wage and Tax Statement");
}

TEST_F(FormTextTest, TextAfterTheFirstEqualsKeepsLaterOnes) {
    loadFrame("A = B = C");
    prog().g.document.currentForm = &loadChild("TF_1099R");
    EXPECT_EQ(errorFormText(), "Name    = TF_1099R\r\nCaption = B = C");
}

TEST_F(FormTextTest, CaptionWithoutEqualsGivesTheNameAlone) {
    loadFrame("Ledgerwick");
    prog().g.document.currentForm = &loadChild("F1_Configure");
    EXPECT_EQ(errorFormText(), "F1_Configure");
}

TEST_F(FormTextTest, NoFrameAndNoCurrentFormGiveNothing) {
    EXPECT_EQ(errorFormText(), "");
    logError("M9_Test:Proc", 5, "x");
    ASSERT_TRUE(lastErrorReport().has_value());
    EXPECT_EQ(lastErrorReport()->form, "");
}

TEST_F(FormTextTest, UnloadedCurrentFormCountsAsNone) {
    loadFrame("Ledgerwick = Something");
    Form& child = loadChild("TF_W2G");
    prog().g.document.currentForm = &child;
    child.unload();
    EXPECT_EQ(errorFormText(), "Name    = \r\nCaption = Something");
}

TEST_F(DiagnosticsTest, FaultWhileReportingIsReportedAsErrorLoggersOwn) {
    ui.failNextShowingOf = "F8_ErrLog";
    ui.failureText = "no screen";
    logError("M4_FileCode:Read_File", 53, "File not found");
    EXPECT_EQ(ui.modalForms, (std::vector<std::string>{"F8_ErrLog", "F8_ErrLog"}));
    ASSERT_TRUE(lastErrorReport().has_value());
    EXPECT_EQ(lastErrorReport()->module, "Error_Logger");
    EXPECT_EQ(lastErrorReport()->number, "5");
    EXPECT_EQ(lastErrorReport()->description, "no screen");
    EXPECT_EQ(lastErrorReport()->program, "Ledgerwick v.25.1.5");
}

TEST_F(DiagnosticsTest, FaultShowingTheDataErrorBoxGoesThroughTheBoxesTail) {
    ui.failNextShowingOf = "F9_MBX";
    logError("M9_Test:Proc", 801, "bad");
    EXPECT_EQ(ui.modalForms, (std::vector<std::string>{"F9_MBX", "F8_ErrLog"}));
    ASSERT_TRUE(lastErrorReport().has_value());
    EXPECT_EQ(lastErrorReport()->module, "M2_VenturoCommon:MA_MBX");
}

TEST_F(DiagnosticsTest, PortThatAlwaysFailsDoesNotNestReportsForever) {
    ui.queue([](Form&) { throw AppError(801, "again"); });
    for (int i = 0; i < 20; ++i) ui.queue([](Form&) { throw AppError(801, "again"); });
    ::testing::internal::CaptureStderr();
    logError("M9_Test:Proc", 801, "first");
    const std::string written = ::testing::internal::GetCapturedStderr();
    EXPECT_NE(written.find("nested too deep"), std::string::npos);
    EXPECT_LE(ui.modalForms.size(), 20u);
}

TEST(Version, OnePlaceForTitleAndNumbers) {
    EXPECT_EQ(programVersionText(), "Ledgerwick v.25.1.5");
    EXPECT_EQ(versionMajorText(), "25");
    EXPECT_EQ(versionFullText(), "25.1.5");
    char expected[16];
    std::snprintf(expected, sizeof expected, "%02d.%02d.%04d", kVersionMajor, kVersionMinor,
                  kVersionRevision);
    EXPECT_STREQ(kFileVersionText, expected);
}

}  // namespace
}  // namespace lw::test
