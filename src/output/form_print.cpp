#include "output/form_print.h"

#include <string>

#include "diagnostics/error_tail.h"
#include "diagnostics/message_box.h"
#include "model/app_error.h"
#include "model/program.h"

namespace lw {

namespace {

constexpr int kPrinterError = 482;

Globals& g() { return program().g; }

}  // namespace

std::string currentPrinter() {
    if (!g().choices.currentPrinter.empty()) return g().choices.currentPrinter;
    const std::vector<std::string> printers = program().platform.printers();
    return printers.empty() ? std::string() : printers.front();
}

void askAndPrint(Form& form) {
    // The colours of the field in focus must not reach the paper.
    for (const auto& owned : form.controls())
        if (owned->isTextBox()) owned->backColor = kWhite;
    // A configured printer that has gone leaves the current one, without a word.
    for (const std::string& printer : program().platform.printers()) {
        if (printer == g().choices.printerName) {
            g().choices.currentPrinter = printer;
            break;
        }
    }
    runGuarded("M3_Ledgerwick:Form_Print", [&] {
        if (g().process.debug) {
            MessageBoxRequest ask{"Print?", "Do you want to print?", kNoMessageNumber, {"Yes", "No"}};
            ask.icon = MessageBoxIcon::Question;
            if (showMessageBox(program().desktop, ask).button == MessageBoxButton::Second) return;
        }
        if (program().platform.printers().empty())
            throw AppError(kPrinterError,
                           "Printer error: no printer is installed on this machine, so the form "
                           "cannot be printed. Add a printer to the system and print again.");
        if (!program().ui.printForm(form, currentPrinter()))
            throw AppError(kPrinterError, "Printer error: the printer " + currentPrinter() +
                                              " did not take the page of " + form.caption + ".");
    });
}

}  // namespace lw
