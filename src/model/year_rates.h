#pragma once
// The Social Security and Medicare figures of the tax year, each read once from its text into an exact
// amount, and the filing status that picks the Medicare change point.

#include <optional>
#include <string>
#include <string_view>

#include "text/currency.h"

namespace lw {

// The filing status of the configuration form. Each is spelt as the program writes it, and the spelling
// depends on where the choice was made: "Single" as the form loads, "SGL" when its option is clicked, "S"
// when chosen as the form closes. Only Single and MarriedSeparately have a change point of their own.
enum class FilingStatus {
    NotChosen,
    Single,
    SingleByOption,
    SingleOnClosing,
    MarriedSeparately,
    MarriedJointly
};

// "", "Single", "SGL", "S", "MFS", "MFJ".
const char* filingStatusWord(FilingStatus status);
// The status spelt so; NotChosen for any other word.
FilingStatus filingStatusOfWord(std::string_view word);

// A figure as SSMC.inf or the configuration form spells it, kept so for the form and the file, and its
// value read once from that text: a percentage (6.2 for 6.2%) or an amount of dollars, to the
// ten-thousandth. Thousands commas and dollar signs are read past, the percent sign too when asked;
// the value is nothing when the rest is no number, or too large to hold.
class RateFigure {
public:
    RateFigure() = default;
    explicit RateFigure(std::string text, bool percentSignReadPast = false);

    const std::string& text() const { return text_; }
    const std::optional<text::Currency>& value() const { return value_; }

private:
    std::string text_;
    std::optional<text::Currency> value_;
};

// The figures by what they are, in the order of the configuration form.
enum class RateItem {
    SocialSecurityRate,
    SocialSecurityWageBase,
    MedicareRate,
    MedicareChangePoint,
    MedicareRateAfter,
    PartBPremium,
    PartBIncomeLimit,
};

struct Rates {
    FilingStatus filingStatus = FilingStatus::NotChosen;
    RateFigure socialSecurityRate;      // percent
    RateFigure socialSecurityWageBase;  // dollars
    RateFigure medicareRate;            // percent, on wages up to the change point
    RateFigure medicareChangePoint;     // dollars, by filing status
    RateFigure medicareRateAfter;       // percent, on wages over the change point
    RateFigure partBPremium;            // dollars a year
    RateFigure partBIncomeLimit;        // dollars

    const RateFigure& figure(RateItem item) const;
    // Reads the text of an item once. Only the Social Security rate is read past a percent sign, as
    // the W-2 has always read the figures.
    void set(RateItem item, std::string text);
};

}  // namespace lw
