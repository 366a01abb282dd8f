#include "output/form_print.h"

#include <string>

#include "diagnostics/error_tail.h"
#include "diagnostics/message_box.h"
#include "model/app_error.h"
#include "model/ports.h"
#include "model/process_state.h"
#include "model/program_parts.h"
#include "model/user_choices.h"

namespace lw {

namespace {

constexpr int kPrinterError = 482;

}  // namespace

std::string currentPrinter(const UserChoices& choices, PlatformPort& platform) {
    if (!choices.currentPrinter.empty()) return choices.currentPrinter;
    const std::vector<std::string> printers = platform.printers();
    return printers.empty() ? std::string() : printers.front();
}

void askAndPrint(const ProgramParts& parts, Form& form) {
    UserChoices& choices = parts.choices;
    PlatformPort& platform = parts.platform;
    // The colours of the field in focus must not reach the paper.
    for (const auto& owned : form.controls())
        if (owned->isTextBox()) owned->backColor = kWhite;
    // A configured printer that has gone leaves the current one, without a word.
    for (const std::string& printer : platform.printers()) {
        if (printer == choices.printerName) {
            choices.currentPrinter = printer;
            break;
        }
    }
    runGuarded("M3_Ledgerwick:Form_Print", [&] {
        if (parts.process.debug) {
            MessageBoxRequest ask{"Print?", "Do you want to print?", kNoMessageNumber, {"Yes", "No"}};
            ask.icon = MessageBoxIcon::Question;
            if (showMessageBox(parts.desktop, ask).button == MessageBoxButton::Second) return;
        }
        if (platform.printers().empty())
            throw AppError(kPrinterError,
                           "Printer error: no printer is installed on this machine, so the form "
                           "cannot be printed. Add a printer to the system and print again.");
        if (!parts.ui.printForm(form, currentPrinter(choices, platform)))
            throw AppError(kPrinterError, "Printer error: the printer " + currentPrinter(choices, platform) +
                                              " did not take the page of " + form.caption + ".");
    });
}

}  // namespace lw
