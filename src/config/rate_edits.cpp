// The edits of the six figures of the configuration form, and their walk in form order.
#include <array>

#include "config/classic_number.h"
#include "config/rates.h"
#include "diagnostics/error_tail.h"
#include "text/case.h"
#include "text/like.h"
#include "text/masks.h"

namespace lw {

namespace {

const char* const kEditRateLabel = "M3_Ledgerwick:SS_MC_Edit_Rate";
const char* const kEditMoneyLabel = "M3_Ledgerwick:SS_MC_Edit_Money";

// The fifth pattern ends in a list of "-" and "9" and so refuses 12.5; it stays as the program has it.
constexpr std::array<const char*, 6> kRatePatterns = {
    "[0-9]", "[0-9][0-9]", "[0-9].[0-9]", "[0-9].[0-9][0-9]", "[0-9][0-9].[0-9][-9]", "[0-9][0-9].[0-9][0-9]",
};

// An edit that failed has told the operator; its field takes the focus back.
bool edited(Control& ctl, const char* label, void (*edit)(Control&)) {
    bool good = false;
    runGuarded(label, [&] {
        edit(ctl);
        good = true;
    });
    if (!good && ctl.form && ctl.form->isLoaded()) ctl.form->setFocus(ctl);
    return good;
}

void normaliseRate(Control& ctl) {
    if (ctl.text.empty()) raiseDataError(800, "Social Security/Medicare Rate is Mandatory.", kEditRateLabel);
    const std::string rate = text::replaceAll(ctl.text, "%", "");
    if (!config::isClassicNumeric(rate))
        raiseDataError(801, "Social Security/Medicare Rate must be NUMERIC", kEditRateLabel);
    for (const char* pattern : kRatePatterns) {
        if (text::likeMatch(rate, pattern)) {
            ctl.text = rate;
            return;
        }
    }
    if (text::containsNoCase(ctl.name, "MC"))
        raiseDataError(802, "Invalid Medicare Rate - Format is #, ##, #.#, ##.#, #.## or ##.##",
                       kEditRateLabel);
    raiseDataError(803, "Invalid Social Security Rate - Format is #, ##, #.#, #.##, ##.# or ##.##",
                   kEditRateLabel);
}

void normaliseRateAmount(Control& ctl) {
    if (ctl.text.empty()) raiseDataError(801, "Amount is MANDATORY!", kEditMoneyLabel);
    if (!config::isClassicNumeric(ctl.text))
        raiseDataError(802, "Amount IS NOT NUMERIC - commas, decimals are OK", kEditMoneyLabel);
    const std::string name = text::toLower(ctl.name);
    std::string limit;
    std::string formatted;
    int overLimit = 0;
    if (name == "txtssmax" || name == "txtmcchgrateafter") {
        limit = "1,000,000.00";
        formatted = text::formatNumber(config::roundHalfEvenToWhole(ctl.text), "###,###.00");
        overLimit = 803;
    } else if (name == "txtmcpartbpremiums") {
        limit = "3,000.00";
        formatted = text::formatNumber(*config::plainNumber(ctl.text), "#,###.00");
        overLimit = 804;
    } else {
        raiseDataError(900, "Program Error", kEditMoneyLabel);
    }
    if (config::compareDecimal(formatted, limit) > 0)
        raiseDataError(overLimit, "Amount CANNOT be Greater Than " + limit, kEditMoneyLabel);
    ctl.text = formatted;
}

}  // namespace

bool checkRateField(Control& rateField) { return edited(rateField, kEditRateLabel, normaliseRate); }

bool checkRateAmountField(Control& rateField) {
    return edited(rateField, kEditMoneyLabel, normaliseRateAmount);
}

bool validateAllRates(Form& configureForm) {
    struct Field {
        const char* name;
        bool (*edit)(Control&);
    };
    static const Field fields[] = {
        {"txtSSRate", checkRateField},      {"txtSSMax", checkRateAmountField},
        {"txtMCInitRate", checkRateField},  {"txtMCChgRateAfter", checkRateAmountField},
        {"txtMCRateAfter", checkRateField}, {"txtMCPartBPremiums", checkRateAmountField},
    };
    for (const Field& field : fields)
        if (!field.edit(configureForm.at(field.name))) return false;
    return true;
}

bool ratesInForce(const Rates& rates) {
    struct Figure {
        const char* field;
        RateItem item;
        bool (*edit)(Control&);
    };
    static const Figure figures[] = {
        {"txtSSRate", RateItem::SocialSecurityRate, checkRateField},
        {"txtSSMax", RateItem::SocialSecurityWageBase, checkRateAmountField},
        {"txtMCInitRate", RateItem::MedicareRate, checkRateField},
        {"txtMCChgRateAfter", RateItem::MedicareChangePoint, checkRateAmountField},
        {"txtMCRateAfter", RateItem::MedicareRateAfter, checkRateField},
    };
    for (const Figure& figure : figures) {
        // The figure goes through its field's edit on a stand-in for the field, which no form holds.
        Control standIn;
        standIn.kind = ControlKind::TextBox;
        standIn.name = figure.field;
        standIn.text = rates.figure(figure.item).text();
        if (!figure.edit(standIn)) return false;
    }
    return true;
}

}  // namespace lw
