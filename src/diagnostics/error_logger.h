#pragma once
// The single entry of every failure report: Data Errors (800 to 899) in the message box, every other
// number in the error report form. The program goes on afterwards in both cases.

#include <string>

namespace lw {

// proc is the label "<module or form>:<procedure>" of the procedure that failed.
void logError(const std::string& proc, int errNo, const std::string& errDesc);

// The form in use as the report form shows it: with a "=" in the frame's caption, the current form's name
// and the caption's text after the "=" on two lines; else the current form's name alone; "" with none.
std::string errorFormText();

}  // namespace lw
