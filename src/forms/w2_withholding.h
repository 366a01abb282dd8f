// The W-2's withholding worked out from the figures of the year: box 4 from the Social Security wages of
// box 3, box 6 from the Medicare wages of box 5. The figures are used as doubles, as the program has always
// worked these out, and each share is held to the ten-thousandth.
#pragma once

#include "model/year_rates.h"
#include "text/currency.h"

namespace lw {

// The Social Security rate of the wages, up to the wage base.
// A figure that is no number is a fault of the program (the figures are checked before they are used), a
// Type mismatch; an amount beyond what Currency holds throws std::overflow_error.
text::Currency socialSecurityTax(const Rates& rates, double wages);

// The Medicare rate of the wages up to the change point, and the rate after it of the wages over it, the
// two shares added. Faults as above.
text::Currency medicareTax(const Rates& rates, double wages);

}  // namespace lw
