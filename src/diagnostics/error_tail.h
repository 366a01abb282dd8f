#pragma once
// The one error tail of the program: a procedure runs its body through it, and any fault of the body
// is handed to logError with the procedure's label. The caller goes on as if the body had ended.

#include <exception>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace lw {

// A fault as the operator is told of it: the classic run-time number and its description.
struct Fault {
    int number = 0;
    std::string description;
};

// The number and description of a caught exception: AppError keeps its own, the standard library's
// faults take the run-time numbers (9 subscript, 13 type mismatch, 7 memory, 5 for the rest).
// The pointer must not hold a ProgramEnded.
Fault faultOf(std::exception_ptr fault);

// Runs body; a fault lands in the tail: in debug mode it is written to stderr (and stops in an attached
// debugger), then always goes to logError(label, number, description). Nothing escapes but
// ProgramEnded, which must reach the driver that ends the program.
void runGuarded(std::string_view label, const std::function<void()>& body);

// As runGuarded, for a procedure with a result: a fault leaves the fallback as the result.
template <class T, class Body>
T runGuardedOr(std::string_view label, T fallback, Body&& body) {
    T result = std::move(fallback);
    runGuarded(label, [&] { result = body(); });
    return result;
}

// Raises a numbered error, most often a Data Error (800 to 899) with the text for the operator.
[[noreturn]] void raiseDataError(int number, const std::string& text, const std::string& source = {});

// In debug mode only: writes "<label>: error <n>: <desc>" to stderr and stops in an attached debugger.
void stopForProgrammer(std::string_view label, const Fault& fault);

}  // namespace lw
