#pragma once
// What the program hands the forms and procedures it runs: the state they work on and the ports to the
// world outside. The program owns the one set; a form keeps it from its creation, and a procedure takes
// it, or the few pieces of it that it needs, as parameters.

namespace lw {

class Desktop;
class PlatformPort;
class UiPort;
struct EditionSettings;
struct OpenDocument;
struct ProcessState;
struct Rates;
struct TaxpayerMemory;
struct UserChoices;
class TaxYearChoice;

struct ProgramParts {
    UiPort& ui;
    PlatformPort& platform;
    Desktop& desktop;
    ProcessState& process;
    EditionSettings& edition;
    UserChoices& choices;
    OpenDocument& document;
    TaxpayerMemory& taxpayers;
    TaxYearChoice& taxYear;
    Rates& rates;
};

}  // namespace lw
