#pragma once
// The tax year as a value: the four years the operator cycles through, fixed from This Year, and which of
// them is in force.

#include <optional>
#include <string>
#include <string_view>

namespace lw {

class TaxYearChoice {
public:
    // In the order the scripts number them (0 to 3).
    enum class Slot { LastYear, ThisYear, NextYear, Placeholder };
    static constexpr const char* kPlaceholderText = "20XX";

    // Before set-up: no years, so every text is empty, and This Year is the slot in force.
    TaxYearChoice() = default;
    // The cycle around `thisYear`, with `inForce` the year in force.
    explicit TaxYearChoice(int thisYear, Slot inForce = Slot::ThisYear);

    bool isSetUp() const { return thisYear_.has_value(); }
    Slot slot() const { return slot_; }
    // The slot's number, 0 to 3.
    int index() const { return static_cast<int>(slot_); }
    // "2024", "2025", "2026" or "20XX"; empty before set-up.
    std::string textOf(Slot slot) const;

    // The year in force as text ("2025", "20XX"), its last two characters ("25", "XX") and its number
    // (nothing for the placeholder and before set-up).
    std::string text() const { return textOf(slot_); }
    std::string digits() const;
    std::optional<int> number() const;
    bool isPlaceholder() const { return isSetUp() && slot_ == Slot::Placeholder; }

    // The same years with the next of the cycle in force: This Year, Next Year, 20XX, Last Year, This Year.
    TaxYearChoice next() const;
    // Puts the year spelt `year` in force; false, and nothing changed, when none of the four is spelt so.
    bool choose(std::string_view year);

    friend bool operator==(const TaxYearChoice& a, const TaxYearChoice& b) {
        return a.thisYear_ == b.thisYear_ && a.slot_ == b.slot_;
    }
    friend bool operator!=(const TaxYearChoice& a, const TaxYearChoice& b) { return !(a == b); }

private:
    std::optional<int> thisYear_;
    Slot slot_ = Slot::ThisYear;
};

}  // namespace lw
