#include "model/year_rates.h"

#include <array>
#include <stdexcept>
#include <utility>

#include "text/currency_text.h"
#include "text/number.h"
#include "text/pieces.h"

namespace lw {

namespace {

struct StatusWord {
    FilingStatus status;
    const char* word;
};

constexpr std::array<StatusWord, 6> kStatusWords = {{
    {FilingStatus::NotChosen, ""},
    {FilingStatus::Single, "Single"},
    {FilingStatus::SingleByOption, "SGL"},
    {FilingStatus::SingleOnClosing, "S"},
    {FilingStatus::MarriedSeparately, "MFS"},
    {FilingStatus::MarriedJointly, "MFJ"},
}};

// The number test decides what is a number, as it does for every figure the program reads; the exact
// reading of the same digits gives the amount.
std::optional<text::Currency> valueOf(const std::string& plain) {
    if (!text::isNumeric(plain)) return std::nullopt;
    try {
        return text::currencyFromText(plain);
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

// The member of an item, read-only or not as the figures are.
template <typename SomeRates>
auto& figureOf(SomeRates& rates, RateItem item) {
    switch (item) {
        case RateItem::SocialSecurityRate:
            return rates.socialSecurityRate;
        case RateItem::SocialSecurityWageBase:
            return rates.socialSecurityWageBase;
        case RateItem::MedicareRate:
            return rates.medicareRate;
        case RateItem::MedicareChangePoint:
            return rates.medicareChangePoint;
        case RateItem::MedicareRateAfter:
            return rates.medicareRateAfter;
        case RateItem::PartBPremium:
            return rates.partBPremium;
        case RateItem::PartBIncomeLimit:
            break;
    }
    return rates.partBIncomeLimit;
}

}  // namespace

const char* filingStatusWord(FilingStatus status) {
    for (const StatusWord& entry : kStatusWords)
        if (entry.status == status) return entry.word;
    return "";
}

FilingStatus filingStatusOfWord(std::string_view word) {
    for (const StatusWord& entry : kStatusWords)
        if (word == entry.word) return entry.status;
    return FilingStatus::NotChosen;
}

RateFigure::RateFigure(std::string text, bool percentSignReadPast) : text_(std::move(text)) {
    std::string plain = text::replaceAll(text::replaceAll(text_, ",", ""), "$", "");
    if (percentSignReadPast) plain = text::replaceAll(plain, "%", "");
    value_ = valueOf(plain);
}

const RateFigure& Rates::figure(RateItem item) const { return figureOf(*this, item); }

void Rates::set(RateItem item, std::string text) {
    figureOf(*this, item) = RateFigure(std::move(text), item == RateItem::SocialSecurityRate);
}

}  // namespace lw
