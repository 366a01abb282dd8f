#pragma once
// Load TP on the card form: one card for each person of the store who has a number.

namespace lw {

class Form;

// who is 1 or 2: that taxpayer's card comes first. Only the first 1024 characters of the user's section
// of the store are seen, as one buffer of the platform's section call holds them.
void fillTaxpayersCard(Form& form, int who);

}  // namespace lw
