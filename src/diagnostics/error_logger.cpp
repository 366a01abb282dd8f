#include "diagnostics/error_logger.h"

#include <algorithm>
#include <iostream>
#include <memory>

#include "diagnostics/error_report_form.h"
#include "diagnostics/error_tail.h"
#include "diagnostics/message_box.h"
#include "diagnostics/version.h"
#include "model/app_error.h"
#include "model/program.h"
#include "text/case.h"

namespace lw {

namespace {

const char* const kOwnLabel = "Error_Logger";
// Reports nest through the boxes they show; a port that fails on every box must not nest them forever.
constexpr int kMaxNesting = 8;
int nesting = 0;

struct NestingGuard {
    NestingGuard() { ++nesting; }
    ~NestingGuard() { --nesting; }
};

// The current form, if it is still a loaded form of the desktop: the pointer outlives an unloaded form.
const Form* currentForm() {
    const Form* current = program().g.document.currentForm;
    if (!current) return nullptr;
    const auto forms = program().desktop.forms();
    return std::find(forms.begin(), forms.end(), current) != forms.end() ? current : nullptr;
}

std::unique_ptr<ErrorReportForm> reportForm(const std::string& module, int number,
                                            const std::string& description) {
    auto form = std::make_unique<ErrorReportForm>();
    form->reportAppName = programVersionText();
    form->reportModule = module;
    form->reportErrorNumber = std::to_string(number);
    form->reportErrorText = description;
    return form;
}

}  // namespace

std::string errorFormText() {
    const Form* current = currentForm();
    const std::string name = current ? current->name() : std::string();
    const Form* frame = program().desktop.frame();
    const std::string frameCaption = frame ? frame->caption : std::string();
    const size_t equals = frameCaption.find('=');
    if (equals == std::string::npos) return name;
    return "Name    = " + name + "\r\n" + "Caption = " + text::trim(frameCaption.substr(equals + 1));
}

void logError(const std::string& proc, int errNo, const std::string& errDesc) {
    if (nesting >= kMaxNesting) {
        std::cerr << proc << ": error " << errNo << ": " << errDesc << " (not shown: reports nested too deep)"
                  << std::endl;
        return;
    }
    NestingGuard guard;
    Fault ownFault;
    try {
        if (isDataError(errNo)) {
            const std::string message = "Procedure Name:        " + proc + "\r" +
                                        "Error Number:          " + std::to_string(errNo) + "\r" +
                                        "Error Description:     " + errDesc + "\r";
            showMessageBox(program().desktop, {"Data Error", message});
            return;
        }
        auto form = reportForm(proc, errNo, errDesc);
        form->reportFormName = errorFormText();
        showErrorReport(std::move(form));
        return;
    } catch (const ProgramEnded&) {
        throw;
    } catch (...) {
        ownFault = faultOf(std::current_exception());
    }

    // A fault of the reporting itself is reported as a fault of logError.
    try {
        stopForProgrammer(kOwnLabel, ownFault);
        auto form = reportForm(kOwnLabel, ownFault.number, ownFault.description);
        try {
            form->reportFormName = errorFormText();
        } catch (const ProgramEnded&) {
            throw;
        } catch (...) {
            form->reportFormName.clear();
        }
        showErrorReport(std::move(form));
    } catch (const ProgramEnded&) {
        throw;
    } catch (...) {
        const Fault last = faultOf(std::current_exception());
        std::cerr << kOwnLabel << ": error " << last.number << ": " << last.description << std::endl;
    }
}

}  // namespace lw
