#pragma once
// The error reports a fuzzed session may meet. The program's rules send a few inputs to the error report
// on purpose; any other report is a fault the session has found. The list of the allowed ones stands in
// session_allowed_reports.txt beside this target: a line names the procedure of the report, its error
// number, and the rule below that must hold for the input at hand.

#include <string>
#include <vector>

namespace lw::fuzz {

// What the session did that a rule looks at, besides the program's own state.
struct SessionFacts {
    std::string lastOpenedFile;   // the file the open dialog handed over last
    bool printerRefused = false;  // the last page went to no printer, or the printer did not take it
    bool guideRefused = false;    // the desktop did not open the last document it was asked to
};

struct ShownReport {
    std::string module;
    int number = 0;
    std::string description;
};

struct AllowedReport {
    std::string module;
    int number = 0;
    std::string rule;
    std::string origin;
};

// The list, read once; a line the target cannot use stops the fuzzer before the first session.
const std::vector<AllowedReport>& allowedReports();

// The rule that allows the report for the input at hand, or nullptr when none does.
const AllowedReport* allowingEntry(const ShownReport& report, const SessionFacts& facts);

}  // namespace lw::fuzz
