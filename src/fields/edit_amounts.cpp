#include <string>

#include "fields/box_dollar_sign.h"
#include "fields/edit_ctl.h"
#include "fields/edit_handler.h"
#include "model/app_error.h"
#include "model/desktop.h"
#include "model/ports.h"
#include "text/masks.h"
#include "text/number.h"
#include "text/pieces.h"

namespace lw {

namespace {

constexpr int kMoneyColour = 3;
// Cents beyond two digits are kept for the mask to round, up to this many.
constexpr std::size_t kCentsKept = 99;

std::string withoutDollarsAndCommas(const std::string& typed) {
    return text::replaceAll(text::replaceAll(typed, "$", ""), ",", "");
}

// The amount as whole part "." cents, each piece tested as a number; nothing is computed on it.
std::string amountText(const std::string& amount, const char* source) {
    int points = 0;
    std::size_t lastPoint = std::string::npos;
    for (std::size_t i = 0; i < amount.size(); ++i) {
        if (amount[i] != '.') continue;
        ++points;
        lastPoint = i;
    }
    if (points > 1) throw AppError(800, "Invalid Amount - More than 1 decimal point.", source);
    std::string whole = amount;
    std::string cents = "00";
    if (lastPoint != std::string::npos) {
        whole = amount.substr(0, lastPoint);
        cents = amount.substr(lastPoint + 1, kCentsKept);
    }
    if (whole.empty()) whole = "0";
    if (cents.empty()) cents = "00";
    if (!text::isNumeric(whole) || !text::isNumeric(cents))
        throw AppError(801, "Invalid Amount - Not numeric", source);
    return whole + "." + cents;
}

}  // namespace

bool editMoney(Control& ctl, const EditContext& context) {
    constexpr const char* kLabel = "M7_Edits:EditCtl_Money";
    return runEdit(ctl, context, kLabel, {kMoneyColour, false}, [&] {
        const std::string amount = amountText(withoutDollarsAndCommas(ctl.text), kLabel);
        ctl.text = text::formatNumber(amount, takesBoxDollarSign(ctl) ? "###,###.00" : "$###,###.00");
    });
}

// A failure shows the colour of Money, not that of Money (+ or -).
bool editMoneyNegativeOk(Control& ctl, const EditContext& context) {
    constexpr const char* kLabel = "M7_Edits:EditCtl_Money_NegativeOK";
    return runEdit(ctl, context, kLabel, {kMoneyColour, false}, [&] {
        std::string amount = withoutDollarsAndCommas(ctl.text);
        const bool negative = !amount.empty() && (amount[0] == '-' || amount[0] == '(');
        // A minus sign anywhere else is dropped without making the amount negative.
        for (const char* sign : {"-", "(", ")"}) amount = text::replaceAll(amount, sign, "");
        ctl.text = text::formatNumber(amountText(amount, kLabel), negative ? "($###,###.00)" : "$###,###.00");
        context.desktop.ui().refresh();
    });
}

}  // namespace lw
