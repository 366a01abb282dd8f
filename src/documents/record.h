#pragma once
// The one-line data file of a form: building it from the form on the screen, and reading it back.

#include <optional>
#include <string>

namespace lw {

class Form;
struct OpenDocument;
struct ProgramParts;

// The line for the form of the document, without its line end; nothing when the form makes none, as
// cards that do not pair up (the operator has been told why), or when there is no form. The document
// gives the form's key and record prefix.
std::optional<std::string> buildRecord(Form* form, const OpenDocument& document);
// Reads the file at path into the form its first field names, which becomes the document's form;
// returns that form, or nullptr when nothing was opened. The path is a copy: a caller may hand the
// document's own file name, which the forms opened on the way may change.
Form* readDataFile(std::string path, const ProgramParts& parts);
// The Open command: unloads the form on the screen, asks for a file, reads it.
void openDataFile(const ProgramParts& parts);
// Passes every DATE and DATEX field of CurrentForm through the date edit, in control order; the
// first that fails ends the pass.
void recheckDates();

// A form that keeps the numbers of chosen pictures (the driver's license: 1 to 16, 0 for none). The
// record stores them as PIC1 and PIC2 and gives them back on reading.
class ChosenPictures {
public:
    virtual ~ChosenPictures() = default;
    // which is 1 (the left license) or 2 (the right one).
    virtual int& chosenPicture(int which) = 0;
};

}  // namespace lw
