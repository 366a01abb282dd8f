#pragma once
// ErrorReportForm, the report form of a Program Error: it shows what failed and where, takes the operator's
// description, and copies itself to the clipboard as a picture for an e-mail to the program's keeper.

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "model/form.h"

namespace lw {

// Where the operator sends error reports; the instructions of the report form name it.
constexpr const char* kErrorReportAddress = "support@ledgerwick.example";

// The seven instruction lines joined by CR LF; "&&" is how a caption shows one "&".
std::string errorReportInstructions();

class ErrorReportForm : public Form {
public:
    static constexpr int kDescriptionMaxLength = 300;
    static constexpr int kCopyPauseMs = 500;

    ErrorReportForm();

    // Filled by logError before the form is loaded.
    std::string reportAppName;
    std::string reportModule;
    std::string reportFormName;
    std::string reportErrorNumber;
    std::string reportErrorText;

    Control& Frame3;                 // information about the error
    std::array<Control*, 5> Label1;  // the captions "Program:" .. "Date/Time:"
    std::array<Control*, 6> Label2;  // program, module, form, number, description, date and time
    Control& Frame2;                 // the operator's description
    Control& Text1;
    Control& Frame1;  // instructions
    Control& Label5;
    Control& cmdClip;
    Control& cmdExit;
    Control& cmdClearAndCopyForDocument;

    void onLoad() override;
    void onKeyPress(Control& control, int& keyAscii) override;
    void onUnload(bool& cancel) override;
    void onClick(Control& control, MouseButton button) override;

    void onClip();
    void onExit();
    void onClearAndCopy();
};

// One report as it was shown, for the drivers that report or check it.
struct ErrorReportRecord {
    std::string program;
    std::string module;
    std::string form;
    std::string number;
    std::string description;
    std::string dateTime;
    std::string operatorText;  // what the operator typed into Text1
};

// The last report form that was closed, and callbacks run as each one closes.
const std::optional<ErrorReportRecord>& lastErrorReport();
int addErrorReportObserver(std::function<void(const ErrorReportRecord&)> observer);
void removeErrorReportObserver(int id);
void resetErrorReports();

// Shows a filled report form modally and records it; logError's way of showing it.
void showErrorReport(std::unique_ptr<ErrorReportForm> form);

}  // namespace lw
