#include "diagnostics/error_report_form.h"

#include <memory>

#include "diagnostics/message_box.h"
#include "diagnostics/observers.h"
#include "diagnostics/picture_capture.h"
#include "model/program.h"
#include "text/case.h"

namespace lw {

namespace {

constexpr int kFormWidth = 9000;
constexpr int kFormHeight = 7560;
constexpr int kMargin = 120;
constexpr int kInnerLeft = 240;
constexpr int kValueLeft = 1320;
constexpr int kInnerWidth = kFormWidth - 2 * kMargin - 2 * kInnerLeft;
constexpr int kLineHeight = 255;

std::optional<ErrorReportRecord>& lastRecord() {
    static std::optional<ErrorReportRecord> instance;
    return instance;
}

// The description as the last report form closed with it.
std::string& closingText() {
    static std::string instance;
    return instance;
}

ObserverList<ErrorReportRecord>& observers() {
    static ObserverList<ErrorReportRecord> instance;
    return instance;
}

}  // namespace

std::string errorReportInstructions() {
    const std::string lines[] = {
        "AN ERROR HAS OCCURRED.",
        "  1) Describe what you were doing just before the error occurred.",
        "  2) Press the [Copy to Clipboard && Exit] button to copy this form to the clipboard.",
        "  3) Open your EMail application.",
        std::string("  4) Address a new EMail to ") + kErrorReportAddress,
        "  5) Paste (press CTRL V) to copy the error information into the email message.",
        "  6) EMail the Error Report",
    };
    std::string joined;
    for (const std::string& line : lines) {
        if (!joined.empty()) joined += "\r\n";
        joined += line;
    }
    return joined;
}

ErrorReportForm::ErrorReportForm()
    : Form("F8_ErrLog"),
      Frame3(add(ControlKind::Frame, "Frame3")),
      Label1{},
      Label2{},
      Frame2(add(ControlKind::Frame, "Frame2")),
      Text1(add(ControlKind::TextBox, "Text1")),
      Frame1(add(ControlKind::Frame, "Frame1")),
      Label5(add(ControlKind::Label, "Label5")),
      cmdClip(add(ControlKind::CommandButton, "cmdClip")),
      cmdExit(add(ControlKind::CommandButton, "cmdExit")),
      cmdClearAndCopyForDocument(add(ControlKind::CommandButton, "cmdClearAndCopyForDocument")) {
    isChild = false;
    width = kFormWidth;
    height = kFormHeight;

    Frame3.caption = "Information About the Error";
    Frame3.place(kMargin, kMargin, kFormWidth - 2 * kMargin, 2535);

    // Caption and value rows; the form's value takes two lines, the description has no caption.
    const char* captions[] = {"Program:", "Module:", "Form:", "Error:", "Date/Time:"};
    const int captionTops[] = {360, 645, 930, 1410, 2175};
    for (int i = 0; i < 5; ++i) {
        Control& c = add(ControlKind::Label, "Label1", i);
        c.caption = captions[i];
        c.opaque = false;
        c.place(kInnerLeft, captionTops[i], kValueLeft - kInnerLeft - 60, kLineHeight);
        Label1[i] = &c;
    }
    const int valueTops[] = {360, 645, 930, 1410, 1695, 2175};
    const int valueHeights[] = {kLineHeight, kLineHeight,     2 * kLineHeight,
                                kLineHeight, 2 * kLineHeight, kLineHeight};
    for (int i = 0; i < 6; ++i) {
        Control& c = add(ControlKind::Label, "Label2", i);
        c.caption = "";
        c.opaque = false;
        c.place(kValueLeft, valueTops[i], kFormWidth - kValueLeft - 2 * kInnerLeft, valueHeights[i]);
        Label2[i] = &c;
    }

    Frame2.caption = "Please describe what you were doing before you got the error (up to 300 characters)";
    Frame2.place(kMargin, 2760, kFormWidth - 2 * kMargin, 1215);
    Text1.multiLine = true;
    Text1.maxLength = kDescriptionMaxLength;
    Text1.place(kInnerLeft, 3000, kInnerWidth, 855);

    Frame1.caption = "Instructions for Sending the Error Report via EMail";
    Frame1.place(kMargin, 4080, kFormWidth - 2 * kMargin, 2295);
    Label5.opaque = false;
    Label5.place(kInnerLeft, 4320, kInnerWidth, 1935);

    cmdClip.caption = "Copy to Clipboard && Exit";
    cmdClip.place(kMargin, 6480, 2655, 495);
    cmdExit.caption = "Exit";
    cmdExit.place(2895, 6480, 1215, 495);
    cmdClearAndCopyForDocument.caption = "Press to Clear Screen and Copy to Clipboard  for User Document";
    cmdClearAndCopyForDocument.place(4230, 6480, kFormWidth - 4230 - kMargin, 495);
    for (Control* b : {&cmdClip, &cmdExit, &cmdClearAndCopyForDocument}) b->backColor = kButtonFace;

    // The description comes first for the operator.
    Text1.tabIndex = 0;
    cmdClip.tabIndex = 1;
    cmdExit.tabIndex = 2;
    cmdClearAndCopyForDocument.tabIndex = 3;
}

void ErrorReportForm::onLoad() {
    // The blank report of the user's guide is made from a start with "Error" on the command line.
    cmdClearAndCopyForDocument.visible = text::containsNoCase(program().platform.commandLine(), "Error");
    caption = "Error in " + reportAppName;
    Label2[0]->caption = reportAppName;
    Label2[1]->caption = reportModule;
    Label2[2]->caption = reportFormName;
    Label2[3]->caption = reportErrorNumber;
    Label2[4]->caption = reportErrorText;
    Label2[5]->caption = program().platform.now().toDisplayText();
    Label5.caption = errorReportInstructions();
}

void ErrorReportForm::onKeyPress(Control& control, int& keyAscii) {
    // The description is written in capitals.
    if (&control == &Text1 && keyAscii >= 'a' && keyAscii <= 'z') keyAscii -= 'a' - 'A';
}

void ErrorReportForm::onClick(Control& control, MouseButton) {
    if (&control == &cmdClip) onClip();
    if (&control == &cmdExit) onExit();
    if (&control == &cmdClearAndCopyForDocument) onClearAndCopy();
}

void ErrorReportForm::onClip() {
    if (Text1.text.empty()) {
        // The platform's standard box with the exclamation icon, shown as our own box with that icon.
        MessageBoxRequest tell{"Provide Description",
                               "Please describe what you were doing just before the error."};
        tell.icon = MessageBoxIcon::Exclamation;
        showMessageBox(program().desktop, tell);
        setFocus(Text1);
        return;
    }
    // The picture replaces whatever the clipboard held. The form stays open, whatever the caption says.
    copyEntirePicture(*this);
    program().platform.sleep(kCopyPauseMs);
}

void ErrorReportForm::onUnload(bool&) { closingText() = Text1.text; }

void ErrorReportForm::onExit() { unload(); }

void ErrorReportForm::onClearAndCopy() {
    for (Control* label : Label2) label->caption.clear();
    copyEntirePicture(*this);
    unload();
}

const std::optional<ErrorReportRecord>& lastErrorReport() { return lastRecord(); }

int addErrorReportObserver(std::function<void(const ErrorReportRecord&)> observer) {
    return observers().add(std::move(observer));
}

void removeErrorReportObserver(int id) { observers().remove(id); }

void resetErrorReports() { lastRecord().reset(); }

void showErrorReport(std::unique_ptr<ErrorReportForm> owned) {
    Desktop& desktop = program().desktop;
    ErrorReportForm& form = static_cast<ErrorReportForm&>(desktop.load(std::move(owned)));
    ErrorReportRecord record{form.reportAppName,
                             form.reportModule,
                             form.reportFormName,
                             form.reportErrorNumber,
                             form.reportErrorText,
                             form.Label2[5]->caption,
                             {}};
    closingText().clear();
    // The form is gone once showModal returns: its Unload left the operator's words behind.
    desktop.showModal(form);
    record.operatorText = closingText();
    lastRecord() = record;
    observers().notify(record);
}

}  // namespace lw
