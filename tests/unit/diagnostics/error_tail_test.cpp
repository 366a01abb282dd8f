#include "diagnostics/error_tail.h"

#include <gtest/gtest.h>

#include <csignal>
#include <functional>
#include <new>
#include <stdexcept>
#include <string>
#include <typeinfo>
#include <vector>

#include "diagnostics_fixture.h"
#include "model/app_error.h"

namespace lw::test {
namespace {

struct ThrowCase {
    const char* name;
    std::function<void()> body;
    int number;
    std::string description;
};

struct Base {
    virtual ~Base() = default;
};
struct Derived : Base {};

std::vector<ThrowCase> throwCases() {
    return {
        {"AppError", [] { throw AppError(53, "File not found", "M4_FileCode:Read_File"); }, 53,
         "File not found"},
        {"OutOfRange", [] { throw std::out_of_range("vector"); }, 9, "Subscript out of range"},
        {"VectorAt", [] { (void)std::vector<int>(2).at(5); }, 9, "Subscript out of range"},
        {"InvalidArgument", [] { throw std::invalid_argument("x"); }, 13, "Type mismatch"},
        {"BadConversion", [] { (void)std::stoi("abc"); }, 13, "Type mismatch"},
        {"BadCast",
         [] {
             Base base;
             Base& ref = base;
             (void)dynamic_cast<Derived&>(ref);
         },
         13, "Type mismatch"},
        {"BadAlloc", [] { throw std::bad_alloc(); }, 7, "Out of memory"},
        {"OtherStd", [] { throw std::runtime_error("disk went away"); }, 5, "disk went away"},
        {"NotStd", [] { throw 42; }, 5, "Invalid procedure call or argument"},
    };
}

class ErrorTailKinds : public DiagnosticsTest, public ::testing::WithParamInterface<ThrowCase> {};

TEST_P(ErrorTailKinds, ReportsTheFaultWithItsNumberAndDescription) {
    const ThrowCase& c = GetParam();
    runGuarded("M9_Test:Kinds", c.body);
    ASSERT_TRUE(lastErrorReport().has_value());
    EXPECT_EQ(lastErrorReport()->module, "M9_Test:Kinds");
    EXPECT_EQ(lastErrorReport()->number, std::to_string(c.number));
    EXPECT_EQ(lastErrorReport()->description, c.description);
    EXPECT_EQ(ui.modalForms, std::vector<std::string>{"F8_ErrLog"});
}

INSTANTIATE_TEST_SUITE_P(EachKind, ErrorTailKinds, ::testing::ValuesIn(throwCases()),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(FaultOf, MapsWithoutAProgram) {
    Fault fault = faultOf(std::make_exception_ptr(std::out_of_range("i")));
    EXPECT_EQ(fault.number, 9);
    EXPECT_EQ(fault.description, "Subscript out of range");
    fault = faultOf(std::make_exception_ptr(std::logic_error("")));
    EXPECT_EQ(fault.number, 5);
    EXPECT_EQ(fault.description, "Invalid procedure call or argument");
}

TEST_F(DiagnosticsTest, BodyWithoutFaultShowsNothing) {
    int ran = 0;
    runGuarded("M9_Test:Quiet", [&] { ++ran; });
    EXPECT_EQ(ran, 1);
    EXPECT_TRUE(ui.modalForms.empty());
    EXPECT_FALSE(lastErrorReport().has_value());
    EXPECT_FALSE(lastMessageBox().has_value());
}

TEST_F(DiagnosticsTest, FaultLeavesTheBodyAndTheCallerGoesOn) {
    std::vector<std::string> steps;
    runGuarded("M9_Test:Steps", [&] {
        steps.push_back("before");
        throw std::out_of_range("x");
        steps.push_back("after");
    });
    steps.push_back("caller");
    EXPECT_EQ(steps, (std::vector<std::string>{"before", "caller"}));
}

TEST_F(DiagnosticsTest, DataErrorThroughTheTailGoesToTheBox) {
    runGuarded("M7_Edits:EditCtl_Date",
               [] { raiseDataError(812, "Date is not valid", "M7_Edits:EditCtl_Date"); });
    ASSERT_TRUE(lastMessageBox().has_value());
    EXPECT_EQ(lastMessageBox()->title, "Data Error");
    EXPECT_NE(lastMessageBox()->message.find("M7_Edits:EditCtl_Date"), std::string::npos);
    EXPECT_NE(lastMessageBox()->message.find("Date is not valid"), std::string::npos);
    EXPECT_FALSE(lastErrorReport().has_value());
}

TEST_F(DiagnosticsTest, ProgramEndedPassesThroughTheTail) {
    EXPECT_THROW(runGuarded("M9_Test:End", [] { throw ProgramEnded{}; }), ProgramEnded);
    EXPECT_TRUE(ui.modalForms.empty());
}

TEST_F(DiagnosticsTest, GuardedResultIsTheFallbackAfterAFault) {
    EXPECT_EQ(runGuardedOr("M9_Test:Value", std::string("none"), [] { return std::string("value"); }),
              "value");
    EXPECT_TRUE(ui.modalForms.empty());
    EXPECT_EQ(runGuardedOr("M9_Test:Value", std::string("none"),
                           []() -> std::string { throw std::invalid_argument("x"); }),
              "none");
    ASSERT_TRUE(lastErrorReport().has_value());
    EXPECT_EQ(lastErrorReport()->number, "13");
}

TEST(RaiseDataError, CarriesNumberTextAndSource) {
    try {
        raiseDataError(805, "Amount too large", "TF_W2:Compute");
        FAIL() << "nothing was raised";
    } catch (const AppError& error) {
        EXPECT_EQ(error.number(), 805);
        EXPECT_EQ(error.description(), "Amount too large");
        EXPECT_EQ(error.source(), "TF_W2:Compute");
    }
}

TEST_F(DiagnosticsTest, DebugModeWritesTheFaultToStandardErrorFirst) {
    prog().g.process.debug = true;
    ::testing::internal::CaptureStderr();
    runGuarded("M4_FileCode:Read_File", [] { throw AppError(53, "File not found"); });
    const std::string written = ::testing::internal::GetCapturedStderr();
    EXPECT_NE(written.find("M4_FileCode:Read_File: error 53: File not found"), std::string::npos) << written;
    // The report still follows.
    ASSERT_TRUE(lastErrorReport().has_value());
    EXPECT_EQ(lastErrorReport()->number, "53");
}

TEST_F(DiagnosticsTest, OutsideDebugModeNothingIsWritten) {
    ::testing::internal::CaptureStderr();
    runGuarded("M4_FileCode:Read_File", [] { throw AppError(53, "File not found"); });
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
}

TEST_F(DiagnosticsTest, AStopForTheProgrammerHoldsOnlyInDebugMode) {
    const Fault fault{53, "File not found"};
    ::testing::internal::CaptureStderr();
    stopForProgrammer("M9_Test:Stop", fault);
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
    prog().g.process.debug = true;
    ::testing::internal::CaptureStderr();
    stopForProgrammer("M9_Test:Stop", fault);
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "M9_Test:Stop: error 53: File not found\n");
}

volatile std::sig_atomic_t trapped = 0;
void onTrap(int) { trapped = trapped + 1; }

TEST_F(DiagnosticsTest, DebugModeStopsOnlyWithADebuggerAttached) {
    prog().g.process.debug = true;
    auto previous = std::signal(SIGTRAP, onTrap);
    trapped = 0;
    ::testing::internal::CaptureStderr();
    runGuarded("M9_Test:Trap", [] { throw std::runtime_error("x"); });
    EXPECT_EQ(trapped, 0);
    platform.debugger = true;
    runGuarded("M9_Test:Trap", [] { throw std::runtime_error("x"); });
    ::testing::internal::GetCapturedStderr();
    std::signal(SIGTRAP, previous);
    EXPECT_EQ(trapped, 1);
    EXPECT_EQ(ui.modalForms.size(), 2u);
}

}  // namespace
}  // namespace lw::test
