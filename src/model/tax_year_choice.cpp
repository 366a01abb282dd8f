#include "model/tax_year_choice.h"

#include <array>

namespace lw {

namespace {

constexpr std::array<TaxYearChoice::Slot, 4> kSlots = {
    TaxYearChoice::Slot::LastYear, TaxYearChoice::Slot::ThisYear, TaxYearChoice::Slot::NextYear,
    TaxYearChoice::Slot::Placeholder};

}  // namespace

TaxYearChoice::TaxYearChoice(int thisYear, Slot inForce) : thisYear_(thisYear), slot_(inForce) {}

std::string TaxYearChoice::textOf(Slot slot) const {
    if (!thisYear_) return "";
    switch (slot) {
        case Slot::LastYear:
            return std::to_string(*thisYear_ - 1);
        case Slot::ThisYear:
            return std::to_string(*thisYear_);
        case Slot::NextYear:
            return std::to_string(*thisYear_ + 1);
        case Slot::Placeholder:
            break;
    }
    return kPlaceholderText;
}

std::string TaxYearChoice::digits() const {
    const std::string year = text();
    return year.size() >= 2 ? year.substr(year.size() - 2) : year;
}

std::optional<int> TaxYearChoice::number() const {
    if (!thisYear_ || slot_ == Slot::Placeholder) return std::nullopt;
    return *thisYear_ + (index() - static_cast<int>(Slot::ThisYear));
}

TaxYearChoice TaxYearChoice::next() const {
    TaxYearChoice moved = *this;
    switch (slot_) {
        case Slot::ThisYear:
            moved.slot_ = Slot::NextYear;
            break;
        case Slot::NextYear:
            moved.slot_ = Slot::Placeholder;
            break;
        case Slot::Placeholder:
            moved.slot_ = Slot::LastYear;
            break;
        case Slot::LastYear:
            moved.slot_ = Slot::ThisYear;
            break;
    }
    return moved;
}

bool TaxYearChoice::choose(std::string_view year) {
    if (!thisYear_) return false;
    for (Slot slot : kSlots) {
        if (textOf(slot) == year) {
            slot_ = slot;
            return true;
        }
    }
    return false;
}

}  // namespace lw
