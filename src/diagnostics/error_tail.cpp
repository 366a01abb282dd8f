#include "diagnostics/error_tail.h"

#include <csignal>
#include <iostream>
#include <new>
#include <stdexcept>
#include <typeinfo>
#include <variant>

#include "diagnostics/error_logger.h"
#include "model/app_error.h"
#include "model/program.h"

namespace lw {

namespace {
const char* const kInvalidCallText = "Invalid procedure call or argument";
constexpr int kOutOfMemory = 7;
}  // namespace

Fault faultOf(std::exception_ptr fault) {
    try {
        std::rethrow_exception(fault);
    } catch (const AppError& error) {
        return {error.number(), error.description()};
    } catch (const std::out_of_range&) {
        return {err::kSubscriptOutOfRange, "Subscript out of range"};
    } catch (const std::invalid_argument&) {
        return {err::kTypeMismatch, "Type mismatch"};
    } catch (const std::bad_cast&) {
        return {err::kTypeMismatch, "Type mismatch"};
    } catch (const std::bad_variant_access&) {
        return {err::kTypeMismatch, "Type mismatch"};
    } catch (const std::bad_alloc&) {
        return {kOutOfMemory, "Out of memory"};
    } catch (const std::exception& other) {
        std::string what = other.what();
        return {err::kInvalidProcedureCall, what.empty() ? kInvalidCallText : what};
    } catch (...) {
        return {err::kInvalidProcedureCall, kInvalidCallText};
    }
}

void stopForProgrammer(std::string_view label, const Fault& fault) {
    if (!hasProgram() || !program().g.process.debug) return;
    std::cerr << label << ": error " << fault.number << ": " << fault.description << std::endl;
    // A trap with no debugger to catch it would end the program, which a fault never may.
    if (hasProgram() && program().platform.debuggerAttached()) std::raise(SIGTRAP);
}

void runGuarded(std::string_view label, const std::function<void()>& body) {
    Fault fault;
    try {
        body();
        return;
    } catch (const ProgramEnded&) {
        throw;
    } catch (...) {
        fault = faultOf(std::current_exception());
    }
    try {
        stopForProgrammer(label, fault);
        logError(std::string(label), fault.number, fault.description);
    } catch (const ProgramEnded&) {
        throw;
    } catch (...) {
        // logError reports its own faults; should even that fail, the caller still goes on.
    }
}

void raiseDataError(int number, const std::string& text, const std::string& source) {
    throw AppError(number, text, source);
}

}  // namespace lw
