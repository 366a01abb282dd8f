#include "fake_ports.h"

#include <stdexcept>

#include "diagnostics/error_report_form.h"
#include "model/program.h"

namespace lw::test {

void FakeUi::runModal(Form& form) {
    modalForms.push_back(form.name());
    if (auto* box = dynamic_cast<MessageBoxForm*>(&form)) {
        Control* button = nullptr;
        if (!answers_.empty()) {
            const std::string caption = answers_.front();
            answers_.pop_front();
            button = box->buttonWithCaption(caption);
            if (!button) throw std::logic_error("the box has no button \"" + caption + "\"");
        } else {
            button = box->defaultButtonControl();
        }
        if (button) program().desktop.click(*button);
        boxes.push_back(box->record());
        return;
    }
    if (auto* report = dynamic_cast<ErrorReportForm*>(&form)) program().desktop.click(report->cmdExit);
}

}  // namespace lw::test
