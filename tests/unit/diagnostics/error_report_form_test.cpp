#include "diagnostics/error_report_form.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "diagnostics/error_logger.h"
#include "diagnostics_fixture.h"
#include "text/case.h"

namespace lw::test {
namespace {

class ReportFormTest : public DiagnosticsTest {
protected:
    // The report form loaded as logError fills it, but not shown modally, so that the test plays the
    // operator itself.
    ErrorReportForm& loadReport() {
        auto form = std::make_unique<ErrorReportForm>();
        form->reportAppName = "Ledgerwick v.25.1.5";
        form->reportModule = "M4_FileCode:Read_File";
        form->reportFormName = "Name    = TF_W2\r\nCaption = W-2";
        form->reportErrorNumber = "53";
        form->reportErrorText = "File not found";
        return static_cast<ErrorReportForm&>(prog().desktop.load(std::move(form)));
    }
};

TEST_F(ReportFormTest, LoadFillsTheLabelsFromTheMembersAndTheClock) {
    ErrorReportForm& form = loadReport();
    EXPECT_EQ(form.name(), "F8_ErrLog");
    EXPECT_EQ(form.caption, "Error in Ledgerwick v.25.1.5");
    EXPECT_EQ(form.Label2[0]->caption, "Ledgerwick v.25.1.5");
    EXPECT_EQ(form.Label2[1]->caption, "M4_FileCode:Read_File");
    EXPECT_EQ(form.Label2[2]->caption, "Name    = TF_W2\r\nCaption = W-2");
    EXPECT_EQ(form.Label2[3]->caption, "53");
    EXPECT_EQ(form.Label2[4]->caption, "File not found");
    EXPECT_EQ(form.Label2[5]->caption, "03/07/2025 2:05:09 PM");
    EXPECT_EQ(&form.at("Label2", 5), form.Label2[5]);
}

TEST_F(ReportFormTest, FixedTexts) {
    ErrorReportForm& form = loadReport();
    EXPECT_EQ(form.Label1[0]->caption, "Program:");
    EXPECT_EQ(form.Label1[1]->caption, "Module:");
    EXPECT_EQ(form.Label1[2]->caption, "Form:");
    EXPECT_EQ(form.Label1[3]->caption, "Error:");
    EXPECT_EQ(form.Label1[4]->caption, "Date/Time:");
    EXPECT_EQ(form.Frame3.caption, "Information About the Error");
    EXPECT_EQ(form.Frame2.caption,
              "Please describe what you were doing before you got the error (up to 300 characters)");
    EXPECT_EQ(form.Frame1.caption, "Instructions for Sending the Error Report via EMail");
    EXPECT_EQ(form.cmdClip.caption, "Copy to Clipboard && Exit");
    EXPECT_EQ(form.cmdExit.caption, "Exit");
    EXPECT_EQ(form.cmdClearAndCopyForDocument.caption,
              "Press to Clear Screen and Copy to Clipboard  for User Document");
    EXPECT_EQ(form.Text1.maxLength, 300);
    EXPECT_TRUE(form.Text1.multiLine);
}

TEST_F(ReportFormTest, InstructionsAreSevenLinesWithTheAddressInTheFifth) {
    ErrorReportForm& form = loadReport();
    EXPECT_EQ(form.Label5.caption, errorReportInstructions());
    const std::vector<std::string> lines = text::split(form.Label5.caption, "\r\n");
    ASSERT_EQ(lines.size(), 7u);
    EXPECT_EQ(lines[0], "AN ERROR HAS OCCURRED.");
    EXPECT_EQ(lines[1], "  1) Describe what you were doing just before the error occurred.");
    EXPECT_EQ(lines[2],
              "  2) Press the [Copy to Clipboard && Exit] button to copy this form to the clipboard.");
    EXPECT_EQ(lines[3], "  3) Open your EMail application.");
    EXPECT_EQ(lines[4], std::string("  4) Address a new EMail to ") + kErrorReportAddress);
    EXPECT_EQ(lines[5], "  5) Paste (press CTRL V) to copy the error information into the email message.");
    EXPECT_EQ(lines[6], "  6) EMail the Error Report");
    EXPECT_STREQ(kErrorReportAddress, "support@ledgerwick.example");
}

class DocumentButton : public ReportFormTest,
                       public ::testing::WithParamInterface<std::pair<const char*, bool>> {};

TEST_P(DocumentButton, ShowsOnlyWithErrorOnTheCommandLine) {
    platform.commandLineText = GetParam().first;
    EXPECT_EQ(loadReport().cmdClearAndCopyForDocument.visible, GetParam().second) << GetParam().first;
}

INSTANTIATE_TEST_SUITE_P(CommandLines, DocumentButton,
                         ::testing::Values(std::make_pair("error", true), std::make_pair("Error", true),
                                           std::make_pair("debug ERROR", true),
                                           std::make_pair("xErRoRx", true), std::make_pair("", false),
                                           std::make_pair("debug taskbar", false),
                                           std::make_pair("err or", false)));

TEST_F(DiagnosticsTest, DescriptionIsTypedInCapitals) {
    std::string typed;
    ui.queue([&](Form& form) {
        auto& report = dynamic_cast<ErrorReportForm&>(form);
        FakeUi::type(report.Text1, "saving w2 (ok) #1");
        EXPECT_EQ(prog().desktop.focus(), &report.Text1);
        typed = report.Text1.text;
        FakeUi::press(report.cmdExit);
    });
    logError("M9_Test:Proc", 5, "x");
    EXPECT_EQ(typed, "SAVING W2 (OK) #1");
    EXPECT_EQ(lastErrorReport()->operatorText, "SAVING W2 (OK) #1");
}

TEST_F(DiagnosticsTest, DescriptionStopsAt300Characters) {
    ui.queueReport(std::string(310, 'q'), "exit");
    logError("M9_Test:Proc", 5, "x");
    EXPECT_EQ(lastErrorReport()->operatorText, std::string(300, 'Q'));
}

TEST_F(ReportFormTest, ClipWithoutDescriptionAsksForOneAndReturnsToTheField) {
    ErrorReportForm& form = loadReport();
    prog().desktop.click(form.cmdClip);
    ASSERT_EQ(ui.boxes.size(), 1u);
    const SeenBox& box = ui.boxes[0];
    EXPECT_EQ(box.record.title, "Provide Description");
    EXPECT_EQ(box.record.message, "Please describe what you were doing just before the error.");
    EXPECT_EQ(box.record.number, 800);
    EXPECT_EQ(box.record.icon, MessageBoxIcon::Exclamation);
    EXPECT_EQ(box.icon, "exclamation");
    EXPECT_EQ(box.record.buttons, (std::array<std::string, 4>{"OK", "", "", ""}));
    EXPECT_TRUE(ui.pictures.empty());
    EXPECT_TRUE(platform.sleeps.empty());
    EXPECT_TRUE(form.isLoaded());
    EXPECT_EQ(form.activeControl(), &form.Text1);
}

TEST_F(ReportFormTest, ClipWithDescriptionCopiesThePictureAndStaysOpen) {
    ErrorReportForm& form = loadReport();
    form.Text1.text = "OPENING A FILE";
    prog().desktop.click(form.cmdClip);
    ASSERT_EQ(ui.pictures.size(), 1u);
    EXPECT_EQ(ui.pictures[0].formName, "F8_ErrLog");
    EXPECT_EQ(ui.pictures[0].label2Captions.at(1), "M4_FileCode:Read_File");
    EXPECT_EQ(platform.sleeps, std::vector<int>{500});
    EXPECT_TRUE(ui.boxes.empty());
    EXPECT_TRUE(form.isLoaded());
}

TEST_F(ReportFormTest, BlankDescriptionIsNotEmpty) {
    ErrorReportForm& form = loadReport();
    form.Text1.text = " ";
    prog().desktop.click(form.cmdClip);
    EXPECT_EQ(ui.pictures.size(), 1u);
    EXPECT_TRUE(ui.boxes.empty());
}

TEST_F(ReportFormTest, ExitUnloadsAndCopiesNothing) {
    ErrorReportForm& form = loadReport();
    form.Text1.text = "SOMETHING";
    prog().desktop.click(form.cmdExit);
    EXPECT_TRUE(ui.pictures.empty());
    EXPECT_EQ(prog().desktop.findForm("F8_ErrLog"), nullptr);
}

TEST_F(ReportFormTest, DocumentButtonClearsTheValuesCopiesAndUnloads) {
    platform.commandLineText = "Error";
    ErrorReportForm& form = loadReport();
    prog().desktop.click(form.cmdClearAndCopyForDocument);
    ASSERT_EQ(ui.pictures.size(), 1u);
    EXPECT_EQ(ui.pictures[0].label2Captions, std::vector<std::string>(6, ""));
    EXPECT_EQ(prog().desktop.findForm("F8_ErrLog"), nullptr);
}

TEST_F(DiagnosticsTest, ReportedErrorCanBeCopiedWithTheOperatorsWords) {
    ui.queueReport("was saving", "clip");
    logError("M4_FileCode:Save_File", 70, "Permission denied");
    ASSERT_EQ(ui.pictures.size(), 1u);
    EXPECT_EQ(ui.pictures[0].formName, "F8_ErrLog");
    EXPECT_EQ(platform.sleeps, std::vector<int>{500});
    ASSERT_TRUE(lastErrorReport().has_value());
    EXPECT_EQ(lastErrorReport()->operatorText, "WAS SAVING");
    EXPECT_EQ(lastErrorReport()->module, "M4_FileCode:Save_File");
    EXPECT_EQ(lastErrorReport()->number, "70");
    EXPECT_EQ(prog().desktop.findForm("F8_ErrLog"), nullptr);
}

TEST_F(DiagnosticsTest, ReportedErrorClipWithoutWordsAsksAndCopiesNothing) {
    ui.queue([&](Form& form) {
        auto& report = dynamic_cast<ErrorReportForm&>(form);
        ui.press(report.cmdClip);
        EXPECT_TRUE(report.isLoaded());
        EXPECT_TRUE(ui.pictures.empty());
        ui.press(report.cmdExit);
    });
    logError("M9_Test:Proc", 5, "x");
    EXPECT_EQ(ui.modalForms, (std::vector<std::string>{"F8_ErrLog", "F9_MBX"}));
    ASSERT_EQ(ui.boxes.size(), 1u);
    EXPECT_EQ(ui.boxes[0].record.title, "Provide Description");
    EXPECT_TRUE(ui.pictures.empty());
}

TEST_F(DiagnosticsTest, ReportObserversSeeEachReport) {
    std::vector<ErrorReportRecord> seen;
    const int id = addErrorReportObserver([&](const ErrorReportRecord& r) { seen.push_back(r); });
    logError("M9_Test:One", 91, "Object variable not set");
    removeErrorReportObserver(id);
    logError("M9_Test:Two", 5, "x");
    ASSERT_EQ(seen.size(), 1u);
    EXPECT_EQ(seen[0].module, "M9_Test:One");
    EXPECT_EQ(seen[0].number, "91");
    EXPECT_EQ(seen[0].description, "Object variable not set");
    EXPECT_EQ(lastErrorReport()->module, "M9_Test:Two");
}

}  // namespace
}  // namespace lw::test
