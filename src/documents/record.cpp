// Building the data line of the form on the screen, and the Open command around the reading of one.
#include "documents/record.h"

#include <vector>

#include "diagnostics/error_tail.h"
#include "documents/file_dialogs.h"
#include "model/app_error.h"
#include "model/program.h"
#include "shell/form_lifecycle.h"
#include "store/record_line.h"
#include "text/case.h"
#include "text/cp1252.h"
#include "text/date_text.h"

namespace lw {

namespace {

constexpr const char* kBuildLabel = "M4_FileCode:Build_Record";
constexpr const char* kOpenLabel = "M4_FileCode:Open_File";
constexpr const char* kCardsError = "Error SS_ITIN";
const std::string kCancel(1, text::kFieldSeparator);

Globals& g() { return program().g; }

bool isDigits(const std::string& s) {
    return !s.empty() && s.size() <= 4 && s.find_first_not_of("0123456789") == std::string::npos;
}

bool isCheckLabel(const Control& c) {
    return (c.kind == ControlKind::CheckLabel || c.kind == ControlKind::Label) &&
           text::equalsNoCase(c.name, "Check");
}

// The nine cards pair a number Text1(n) with a name Text1(n+1); the first bad pair stops the check.
void checkCardPairs(const Form& form) {
    bool anyFilled = false;
    for (int n = 0; n <= 16; n += 2) {
        const Control* number = form.find("Text1", n);
        const Control* name = form.find("Text1", n + 1);
        const bool hasNumber = number && !number->text.empty();
        const bool hasName = name && !name->text.empty();
        if (hasNumber && !hasName)
            throw AppError(801, "One or more SS or ITIN cards has a Number without a Name", kBuildLabel);
        if (hasName && !hasNumber)
            throw AppError(802, "One or more SS or ITIN cards has a Name without a Number", kBuildLabel);
        anyFilled = anyFilled || hasNumber;
    }
    if (!anyFilled) throw AppError(803, "All SS/ITIN cards are blank, They WILL NOT be saved.", kBuildLabel);
}

std::vector<store::RecordField> filledControls(const Form& form) {
    std::vector<store::RecordField> fields;
    for (const auto& owned : form.controls()) {
        const Control& c = *owned;
        std::optional<std::string> key;
        const std::string* value = nullptr;
        if (c.isTextBox() && !c.text.empty()) {
            key = store::recordKey(store::RecordSlot::TextBox, c.name, c.index);
            value = &c.text;
        } else if (isCheckLabel(c) && !c.caption.empty()) {
            key = store::recordKey(store::RecordSlot::Check, c.name, c.index);
            value = &c.caption;
        }
        // A control without a key of its own is left out, as a fault of one control is ignored.
        if (key) fields.push_back({*key, *value});
    }
    return fields;
}

int chosenPictureOf(Form& form, int which) {
    if (auto* pictures = dynamic_cast<ChosenPictures*>(&form)) return pictures->chosenPicture(which);
    return 0;
}

// The age at the end of the tax year in force: the difference of the calendar years alone.
std::string ageAtYearEnd(Form& form, const std::string& dob) {
    const std::string& year = g().TaxYears[static_cast<std::size_t>(g().TaxYearIndex)];
    if (year.size() >= 2 && year.substr(year.size() - 2) == "XX") return "N/A";
    std::vector<std::string> parts = text::split(dob, "/");
    int born = 0;
    bool isDate = parts.size() == 3 && parts[2].size() == 4 && isDigits(parts[0]) && isDigits(parts[1]) &&
                  isDigits(parts[2]);
    if (isDate) {
        born = std::stoi(parts[2]);
        isDate = text::isCalendarDate(born, std::stoi(parts[0]), std::stoi(parts[1]));
    }
    // A birth date that is no date cannot be aged, as the classic date conversion refuses it.
    if (!isDate || !isDigits(year)) throw AppError(err::kTypeMismatch, "Type mismatch");
    const int age = std::stoi(year) - born;
    if (age < 0) {
        if (Control* status = form.find("labelMisc")) {
            status->foreColor = kRed;
            status->caption = "One or more date(s) are invalid";
        }
    }
    return std::to_string(age);
}

// The ages of the taxpayer sheet follow the birth dates just read; only the sheet has them.
void fillAges() {
    Form* sheet = program().desktop.findForm("F5_TPInfo");
    if (!sheet || sheet != g().CurrentForm) return;
    for (const auto& row : g().PersonTable) {
        if (row[1].empty() || row[2].empty()) continue;
        Control* dob = sheet->find("Text1", std::stoi(row[1]));
        Control* age = sheet->find("Text2", std::stoi(row[2]));
        if (!dob || !age || dob->text.empty()) continue;
        age->text = ageAtYearEnd(*sheet, dob->text);
    }
}

}  // namespace

std::string Build_Record() {
    std::string line;
    runGuarded(kBuildLabel, [&] {
        Form* form = g().CurrentForm;
        if (!form) throw AppError(err::kObjectRequired, "Object required");
        std::string year;
        if (Form_HasTaxYear()) year = form->at("TaxYear", 0).caption + form->at("TaxYear", 1).caption;
        if (g().FormKey == "SS_ITIN") {
            line = kCardsError;
            checkCardPairs(*form);
        }
        std::vector<store::RecordField> fields = filledControls(*form);
        if (g().FormKey == "DL") {
            fields.push_back({"PIC1", std::to_string(chosenPictureOf(*form, 1))});
            fields.push_back({"PIC2", std::to_string(chosenPictureOf(*form, 2))});
        }
        line = store::buildRecordLine(g().RecordPrefix, year, fields);
    });
    return line;
}

void Open_File() {
    runGuarded(kOpenLabel, [] {
        try {
            if (Form* current = g().CurrentForm; current && current->isLoaded() && current->isChild)
                current->unload();
        } catch (const ProgramEnded&) {
            throw;
        } catch (...) {
            // The form on the screen goes whatever its unloading says.
        }
        // A remembered folder that has gone would send the dialog astray.
        Verify_INF_Entry("OPEN");
        g().CurrentFileName = OpenOrSaveFile(0, "");
        if (g().CurrentFileName == kCancel) return;
        Read_File();
        fillAges();
        program().ui.refresh();
    });
}

}  // namespace lw
