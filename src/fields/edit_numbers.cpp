#include <string>
#include <vector>

#include "fields/edit_ctl.h"
#include "fields/edit_handler.h"
#include "model/app_error.h"
#include "text/masks.h"
#include "text/number.h"
#include "text/pieces.h"

namespace lw {

namespace {
constexpr int kNumericColour = 5;
constexpr int kOtherColour = 9;
constexpr const char* kWholeMask = "###,###,###";
constexpr const char* kNegativeWholeMask = "(###,###,###)";
}  // namespace

bool editNumeric(Control& ctl, const EditContext& context) {
    return runEdit(ctl, context, "M7_Edits:EditCtl_Numeric", {kNumericColour, false}, [&] {
        std::string number = ctl.text;
        if (!number.empty() && number.front() == '(') number.front() = '-';
        if (!number.empty() && number.back() == ')') number.pop_back();
        const bool negative = !number.empty() && number.front() == '-';
        if (negative) number.erase(0, 1);
        if (!text::isNumeric(number))
            throw AppError(802, "Must be NUMERIC - Negative amount (e.g. -1234) is OK");
        ctl.text = text::formatNumber(number, negative ? kNegativeWholeMask : kWholeMask);
    });
}

bool editNumericDecimalOk(Control& ctl, const EditContext& context) {
    if (ctl.text.empty()) return true;
    return runEdit(ctl, context, "M7_Edits:EditCtl_NumericDecimalOK", {kNumericColour, false}, [&] {
        std::string number = ctl.text;
        bool negative = number.front() == '-';
        if (number.front() == '(') {
            negative = true;
            number.front() = '-';
            number = text::replaceAll(number, ")", "");
        }
        const std::vector<std::string> pieces = text::split(number, ".");
        // The sign stays in the number given to the mask, so -1234 shows as -(1,234).
        const std::string& whole = pieces.front();
        std::string shown = whole.empty()
                                ? std::string()
                                : text::formatNumber(whole, negative ? kNegativeWholeMask : kWholeMask);
        if (pieces.size() > 2) throw AppError(801, "Only 1 decimal point allowed");
        // The decimals stand as typed, neither rounded nor padded.
        if (pieces.size() == 2) shown += "." + pieces[1];
        ctl.text = shown;
    });
}

bool editYear(Control& ctl, const EditContext& context) {
    constexpr const char* kLabel = "M7_Edits:EdtiCtl_Year";
    return runEdit(ctl, context, kLabel, {kOtherColour, false}, [&] {
        const char* const kInvalid = "Invalid Year - Use yy or yyyy";
        std::string year = ctl.text;
        if (!text::isNumeric(year)) throw AppError(800, kInvalid, kLabel);
        const std::string century = std::to_string(context.now.year).substr(0, 2);
        if (year.size() == 2)
            year = century + year;
        else if (year.size() == 4 && year.substr(0, 2) != century)
            throw AppError(802, kInvalid, kLabel);
        ctl.text = year;
    });
}

}  // namespace lw
