#pragma once
// K1HelpForm, the modal list of the K-1 codes valid for one box, read from a section of K1Help.inf.

#include <string>

#include "model/form.h"

namespace lw {

// The form's public members, kept by whoever shows the list. They outlive the window: the caller reads
// the choice after it has closed.
struct K1HelpMembers {
    std::string listFormName;    // not looked at by the list
    std::string listSectionKey;  // in: the section name
    std::string chosenCode;      // out: the code clicked, trimmed; empty when none
    std::string chosenOverride;  // out: the O/R column of the row clicked, "X" to override
    bool listCancelled = false;  // out: true after Cancel
};

// The section is read through one buffer of this many characters, as the keepers of the file know.
constexpr std::size_t kK1HelpSectionBuffer = 2048;

// One line of a section as a row of the list: code, purpose, additional information with the third part
// appended, and the O/R mark, joined by tabs and always four columns. A line of fewer than three parts
// raises the run-time fault of an index out of range.
std::string k1HelpGridRow(const std::string& line);

// "Valid Entries for K1 1065 Box 11" for "K1-1065-Box11".
std::string k1HelpCaption(const std::string& key);

class K1HelpForm : public Form {
public:
    static constexpr int kGridWidth = 660 + 9500 + 5000 + 600;
    static constexpr int kMargin = 120;
    static constexpr int kRowHeight = 240;

    // The list of members.listSectionKey, read from the code list file infFile; the choice goes back into
    // members, which must outlive the form.
    K1HelpForm(K1HelpMembers& members, std::string infFile);

    Control& Label0;  // where to read more
    Control& Label1;  // what the O/R column does
    Control& Label2;  // how to choose
    Control& Grid1;   // the codes: header row, then one row a line of the section
    Control& Label3;  // what to do when the list is empty
    Control& cmdCancel;

    void onLoad() override;
    void onClick(Control& control, MouseButton button) override;

    void onCancel();
    void onGridClick();

    // The section the list shows, and the file it reads it from.
    const std::string& sectionKey() const { return members_.listSectionKey; }
    const std::string& infFile() const { return infFile_; }

private:
    void readSection();
    void layOut();

    K1HelpMembers& members_;
    const std::string infFile_;
};

}  // namespace lw
