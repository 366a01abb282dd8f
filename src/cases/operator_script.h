#pragma once
// What an operator does to fill and save a case's documents, written as a ledgerwick-script script, so
// that every document passes through the forms' own keys, edits, computations and Save.

#include <string>

namespace lw::cases {

class OperatorScript {
public:
    // The session: the program's disk, its clock, the edition's executable name.
    OperatorScript(const std::string& root, const std::string& today, const std::string& edition);

    void openForm(const std::string& menuItem);
    void loadTaxpayer(int which);
    // Clicks into the field and types the text as keys; "\n" is the Enter key of a block. Tab leaves it.
    void fill(const std::string& control, const std::string& text);
    // As fill, over a one-line field's design text: Home and Shift+End select it, the typing replaces it.
    void replace(const std::string& control, const std::string& text);
    // Clicks into the field and leaves it with Tab, so that what follows from it is worked out.
    void leave(const std::string& control);
    void click(const std::string& control);
    // Saves under the name the program proposes, in `folder`; a name taken already gets the next number.
    void saveInto(const std::string& folder);
    // A check that stops the case: no box and no error report since the last ones.
    void expectQuiet();

    const std::string& text() const { return text_; }

private:
    void line(const std::string& command);
    static std::string quoted(const std::string& text);

    std::string text_;
};

// Cents as the operator types an amount: "1234.05".
std::string typedAmount(long long cents);
// A number without its dashes, as typed into a number field.
std::string typedDigits(const std::string& number);

}  // namespace lw::cases
