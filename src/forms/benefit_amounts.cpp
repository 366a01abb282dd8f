#include "forms/benefit_amounts.h"

#include "store/inf_store.h"
#include "text/currency_text.h"
#include "text/masks.h"

namespace lw {

using text::Currency;

namespace {
constexpr const char* kNetBenefitsShortReason = "Box 5. Net Benefits... is LESS THAN ZERO";
}  // namespace

Currency netBenefits(Currency paid, Currency repaid) { return paid - repaid; }

bool netBenefitsFallShort(Currency net) { return net < Currency{}; }

void workOutSsaAmounts(SsaAmounts& amount) {
    amount[4] = netBenefits(amount[2], amount[3]);
    amount[17] = amount[9] + amount[10] + amount[11];
    amount[16] = amount[6] + amount[7] + amount[13];
    amount[5] = amount[4] - amount[16];
    amount[8] = amount[4] - amount[17];
    amount[0] = amount[8] + amount[17];
}

SsaShortfall firstSsaShortfall(const SsaAmounts& amount) {
    const Currency zero;
    if (netBenefitsFallShort(amount[4])) return SsaShortfall::NetBenefits;
    if (amount[5] < zero) return SsaShortfall::PaidByCheck;
    if (amount[8] < zero) return SsaShortfall::BenefitsForYear;
    return SsaShortfall::None;
}

void workOutRrbAmounts(RrbAmounts& amount) {
    amount[6] = netBenefits(amount[4], amount[5]);
    amount[0] = amount[8] + amount[9] + amount[10] + amount[11] + amount[12];
}

RrbShortfall firstRrbShortfall(const RrbAmounts& amount) {
    const Currency zero;
    if (netBenefitsFallShort(amount[6])) return RrbShortfall::NetBenefits;
    if (amount[6] - amount[0] < zero) return RrbShortfall::NetLessLaterBoxes;
    return RrbShortfall::None;
}

Currency amountOfText(const std::string& fieldText) {
    return fieldText.empty() ? Currency{} : text::currencyFromText(fieldText);
}

std::string benefitAmountText(Currency amount) { return text::formatCurrency(amount, "$##,###.00"); }

std::string benefitErrorMessage(const std::string& reason) {
    // The railroad statement shows the same words, naming the SSA1099 too.
    return "SSA1099 - Error in Social Security Computations\r\n" + reason +
           "\r\nMake corrections before continuing.";
}

std::string ssaShortfallReason(SsaShortfall shortfall, const std::string& box3Caption) {
    switch (shortfall) {
        case SsaShortfall::NetBenefits:
            return kNetBenefitsShortReason;
        case SsaShortfall::PaidByCheck:
            return "Paid by Check or Direct Deposit is LESS THAN ZERO";
        case SsaShortfall::BenefitsForYear:
            return box3Caption + " is LESS THAN ZERO";
        case SsaShortfall::None:
            break;
    }
    return "";
}

std::string rrbShortfallReason(RrbShortfall shortfall) {
    switch (shortfall) {
        case RrbShortfall::NetBenefits:
            return kNetBenefitsShortReason;
        case RrbShortfall::NetLessLaterBoxes:
            return "Box 5. Net Benefits MINUS total of\r\n--Boxes (7, 8, 9, 10 and 11)\r\nARE LESS THAN ZERO";
        case RrbShortfall::None:
            break;
    }
    return "";
}

std::string partBPremiumOfYear(const TaxYearChoice& taxYear, const std::string& ssmcInfFile) {
    return store::readInfValue(taxYear.text(), "MCPartBPremium", "", ssmcInfFile);
}

}  // namespace lw
