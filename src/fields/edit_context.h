#pragma once
// What the edits of a field work with besides the field itself.

#include "model/date_time.h"

namespace lw {

class Desktop;
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
    // The moment of the edit: a date typed without a year takes its year, a two-digit year its century.
    DateTime now;
};

// The context of an edit from the parts of the program.
EditContext editContextOf(const ProgramParts& parts);

}  // namespace lw
