#include "fields/edit_handler.h"

#include <exception>

#include "diagnostics/error_tail.h"
#include "fields/edit_failure.h"
#include "model/app_error.h"
#include "model/form.h"

namespace lw {

bool runEdit(Control& ctl, const EditContext& context, const char* label, EditFailure failure,
             const std::function<void()>& body) {
    try {
        body();
        return true;
    } catch (const ProgramEnded&) {
        throw;
    } catch (...) {
        const Fault fault = faultOf(std::current_exception());
        showInvalidField(ctl, failure.colour, failure.showRaisedText ? fault.description : "",
                         context.document, context.desktop);
        if (!isDataError(fault.number)) stopForProgrammer(label, fault);
        if (ctl.form) ctl.form->setFocus(ctl);
        return false;
    }
}

}  // namespace lw
