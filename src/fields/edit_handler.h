#pragma once
// The error handler every edit of a field shares: a value that does not stand is shown on the form and
// keeps the focus; a fault that is no data error also stops for the programmer in debug mode.

#include <functional>
#include <string>

#include "fields/edit_context.h"
#include "model/control.h"

namespace lw {

struct EditFailure {
    int colour;           // index of the legend colour the field takes
    bool showRaisedText;  // the identifier edits show their own text, all others the entered value
};

// Runs the edit's body and returns true, or false after the handler has shown the failure.
bool runEdit(Control& ctl, const EditContext& context, const char* label, EditFailure failure,
             const std::function<void()>& body);

}  // namespace lw
