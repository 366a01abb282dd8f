#include "fields/edit_date.h"

#include "catalogue/catalogue_table.h"
#include "diagnostics/error_tail.h"
#include "diagnostics/message_box.h"
#include "fields/edit_failure.h"
#include "model/app_error.h"
#include "model/open_document.h"
#include "model/tax_year_choice.h"
#include "text/date_text.h"
#include "text/pieces.h"

namespace lw {

namespace {

constexpr const char* kSource = "M7_Edits:EditCtl_Date";

bool isDigits(const std::string& s) {
    return !s.empty() && s.find_first_not_of("0123456789") == std::string::npos;
}

// The placeholder year has no leap day and only the two month-length rules, compared as text.
bool placeholderDateStands(const std::string& month, const std::string& day) {
    if (month == "02" && day > "28") return false;
    if ((month == "04" || month == "06" || month == "09" || month == "11") && day > "30") return false;
    return true;
}

std::string lastFour(const std::string& s) { return s.size() >= 4 ? s.substr(s.size() - 4) : s; }

std::string formTaxYear(const OpenDocument& document, const TaxYearChoice& inForce) {
    const Form* form = document.currentForm;
    if (!formKeyHasTaxYear(document.formKey) || !form) return inForce.text();
    return form->at("TaxYear", 0).caption + form->at("TaxYear", 1).caption;
}

void correctYear(Control& ctl, Desktop& desktop, const std::string& year, int number,
                 const std::string& lead) {
    const std::string old = ctl.text;
    ctl.text = old.substr(0, 6) + year;
    showMessageBox(
        desktop,
        {kSource, lead + old + " Changed to " + ctl.text + "\r\n --- Make sure it is correct ---", number});
}

}  // namespace

bool formatDateText(Control& ctl, const DateTime& now) {
    if (ctl.text.empty()) return true;
    std::vector<std::string> pieces = text::split(ctl.text, "/");
    if (pieces.size() == 2) pieces.push_back(std::to_string(now.year));
    if (pieces.size() != 3) return false;
    std::string& month = pieces[0];
    std::string& day = pieces[1];
    const std::string& year = pieces[2];
    if (month.size() == 1) month = "0" + month;
    if (day.size() == 1) day = "0" + day;
    if (year.size() != 4) return false;
    const std::string joined = month + "/" + day + "/" + year;

    bool result = false;
    if (isDigits(month) && isDigits(day) && isDigits(year) && month.size() <= 2 && day.size() <= 2) {
        int y = std::stoi(year), m = std::stoi(month), d = std::stoi(day);
        result = text::isCalendarDate(y, m, d) && text::formatDate(y, m, d) == joined;
    }
    if (!result && year == "20XX") result = placeholderDateStands(month, day);
    ctl.text = joined;
    return result;
}

bool editDate(Control& ctl, const EditContext& context, const std::string& requiredYear) {
    bool result = true;
    try {
        clearStatusLine(context.document);
        const std::string taxYear = formTaxYear(context.document, context.taxYear);
        if (!formatDateText(ctl, context.now))
            throw AppError(801, "Invalid Date - Formats allowed M/D/YYYY, M/DD/YYYY, MM/D/YYYY or MM/DD/YYYY",
                           kSource);
        if (lastFour(ctl.text) == "20XX" && taxYear != "20XX")
            correctYear(ctl, context.desktop, taxYear, 802, "Date ");
        if (!requiredYear.empty() && !ctl.text.empty() && lastFour(ctl.text) != requiredYear)
            correctYear(ctl, context.desktop, requiredYear, 803,
                        "Date MUST match the Tax Year shown on the form\r\n");
    } catch (const ProgramEnded&) {
        throw;
    } catch (...) {
        Fault fault = faultOf(std::current_exception());
        showInvalidField(ctl, 6, "", context.document, context.desktop);
        if (!isDataError(fault.number)) stopForProgrammer(kSource, fault);
        result = false;
    }
    return result;
}

}  // namespace lw
