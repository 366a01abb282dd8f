#pragma once
// What the edits of a field work with besides the field itself.

namespace lw {

class Desktop;
class PlatformPort;
class TaxYearChoice;
struct OpenDocument;
struct ProgramParts;

struct EditContext {
    // The document on the screen: its current form holds the status line the edits write to and the
    // tax year the dates are held to, whichever form the field stands on.
    const OpenDocument& document;
    // The desktop: the legend on its frame gives a failed field its colour, and the edits' boxes show on it.
    Desktop& desktop;
    // The tax year in force, for a date on a form that shows none.
    const TaxYearChoice& taxYear;
    // The machine's clock, read only by the edits that need today: a date typed without a year takes
    // this year, a two-digit year this century.
    PlatformPort& platform;
};

// The context of an edit from the parts of the program.
EditContext editContextOf(const ProgramParts& parts);

}  // namespace lw
