#include "taxpayer/tpinfo_sheet.h"

#include <optional>
#include <vector>

#include "diagnostics/error_tail.h"
#include "model/app_error.h"
#include "model/form.h"
#include "model/open_document.h"
#include "model/program_parts.h"
#include "model/taxpayer_memory.h"
#include "shell/startup.h"
#include "store/user_inf.h"
#include "text/case.h"
#include "text/cp1252.h"
#include "text/date_text.h"
#include "text/pieces.h"

namespace lw {

namespace {

bool isYearDigits(const std::string& s) {
    return !s.empty() && s.size() <= 4 && s.find_first_not_of("0123456789") == std::string::npos;
}

bool endsIn20XX(const std::string& s) {
    return s.size() >= 4 && text::toUpper(s.substr(s.size() - 4)) == "20XX";
}

}  // namespace

std::string ageAtYearEnd(Form& form, const std::string& birthDate, const TaxYearChoice& taxYear) {
    if (taxYear.isPlaceholder()) return "N/A";
    const std::vector<std::string> parts = text::split(birthDate, "/");
    bool isDate = parts.size() == 3 && parts[2].size() == 4 && isYearDigits(parts[0]) &&
                  isYearDigits(parts[1]) && isYearDigits(parts[2]);
    const int born = isDate ? std::stoi(parts[2]) : 0;
    isDate = isDate && text::isCalendarDate(born, std::stoi(parts[0]), std::stoi(parts[1]));
    // A birth date that is no date cannot be aged, as the classic date conversion refuses it.
    const std::optional<int> year = taxYear.number();
    if (!isDate || !year) throw AppError(err::kTypeMismatch, "Type mismatch");
    const int age = *year - born;
    if (age < 0) {
        if (Control* status = form.find("labelMisc")) {
            status->foreColor = kRed;
            status->caption = "One or more date(s) are invalid";
        }
    }
    return std::to_string(age);
}

void updateAge(Form& sheet, const std::string& dobIndex, const std::string& ageIndex,
               const TaxYearChoice& taxYear) {
    const Control& dob = sheet.at("Text1", std::stoi(dobIndex));
    Control& age = sheet.at("Text2", std::stoi(ageIndex));
    if (dob.text.empty()) return;
    age.text = endsIn20XX(dob.text) ? "N/A" : ageAtYearEnd(sheet, dob.text, taxYear);
}

void updateAllAges(Form& sheet, const TaxpayerMemory& taxpayers, const TaxYearChoice& taxYear) {
    // A row that cannot be aged leaves the others to be aged all the same.
    for (const auto& row : taxpayers.personTable)
        runGuarded("F5_TPInfo:UpdateAge", [&] { updateAge(sheet, row[1], row[2], taxYear); });
}

void saveTaxpayerSheet(const ProgramParts& parts) {
    runGuarded("M6_TPInfo:TPInfo_Save", [&parts] {
        std::string fields[6];
        const std::vector<std::string> pieces =
            text::split(parts.document.formRecord, std::string(1, text::kFieldSeparator));
        for (std::size_t i = 2; i < pieces.size(); ++i) {
            const std::string head = text::toUpper(pieces[i].substr(0, 5));
            for (int k = 0; k < 6; ++k)
                if (head == "TXT" + std::to_string(k) + "=") fields[k] = pieces[i].substr(5);
        }
        writeUserInf(parts, "TP1NameAddr", fields[0]);
        writeUserInf(parts, "TP1SSN", fields[1]);
        writeUserInf(parts, "TP1DOB", fields[2]);
        writeUserInf(parts, "TP2NameAddr", fields[3]);
        writeUserInf(parts, "TP2SSN", fields[4]);
        writeUserInf(parts, "TP2DOB", fields[5]);
        Form* sheet = parts.document.currentForm;
        if (!sheet) return;
        for (int i = 6, k = 1; i <= 30; i += 4, ++k) {
            const std::string& name = sheet->at("Text1", i).text;
            const std::string& number = sheet->at("Text1", i + 1).text;
            const bool blank = text::trim(name).empty() && text::trim(number).empty();
            writeUserInf(parts, "Dependent" + std::to_string(k),
                         blank ? "" : name + text::kFieldSeparator + number);
        }
    });
}

}  // namespace lw
