// The arithmetic of the two benefit statements, the SSA-1099 and the RRB-1099, on exact currency
// amounts kept by the index of the field they come from, with the tests that stop a statement and
// the texts that tell the operator why.
#pragma once

#include <array>
#include <string>

#include "model/tax_year_choice.h"
#include "text/currency.h"

namespace lw {

// Box 5 of both statements, the net benefits: the benefits paid less the benefits repaid.
text::Currency netBenefits(text::Currency paid, text::Currency repaid);
// Whether the net benefits fall below nought: the first check of both statements.
bool netBenefitsFallShort(text::Currency net);

// SSA-1099: amount(i) belongs to Text1(i); amount(0) and amount(17) are sums that no field shows.
using SsaAmounts = std::array<text::Currency, 18>;

// The first amount of the SSA-1099 found below zero, in the order they are tested.
enum class SsaShortfall { None, NetBenefits, PaidByCheck, BenefitsForYear };

// Net benefits (4) = benefits paid (2) - repaid (3); the earlier years' benefits (17) = 9 + 10 + 11;
// total additions (16) = Part B (6) + Part D (7) + tax withheld (13); paid by check (5) = 4 - 16;
// benefits for the tax year (8) = 4 - 17; and 0 = 8 + 17. Throws std::overflow_error past 64 bits.
void workOutSsaAmounts(SsaAmounts& amount);
SsaShortfall firstSsaShortfall(const SsaAmounts& amount);

// RRB-1099: amount(i) belongs to Text1(i) for 4 to 12; amount(0) is the total of boxes 7 to 11.
using RrbAmounts = std::array<text::Currency, 13>;

enum class RrbShortfall { None, NetBenefits, NetLessLaterBoxes };

// Net amount (6) = gross (4) - repaid (5); 0 = 8 + 9 + 10 + 11 + 12.
void workOutRrbAmounts(RrbAmounts& amount);
RrbShortfall firstRrbShortfall(const RrbAmounts& amount);

// The text of an empty field is nought; any other is read as money (text::currencyFromText), a
// text that is no amount throwing std::invalid_argument.
text::Currency amountOfText(const std::string& fieldText);

// An amount as the statements show it: "$1,234.00", "$.50", "-$5.00".
std::string benefitAmountText(text::Currency amount);

// The one message of both statements, with the reason in the middle.
std::string benefitErrorMessage(const std::string& reason);
// The reasons. The third of the SSA-1099 names the caption its box 3 has at the time.
std::string ssaShortfallReason(SsaShortfall shortfall, const std::string& box3Caption);
std::string rrbShortfallReason(RrbShortfall shortfall);

// The yearly Medicare Part B premium of the tax year, from the rates file (SSMC.inf); empty when the
// year has none.
std::string partBPremiumOfYear(const TaxYearChoice& taxYear, const std::string& ssmcInfFile);

}  // namespace lw
