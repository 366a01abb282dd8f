#pragma once
// Load TP on the card form: one card for each person of the store who has a number.

#include <string>

namespace lw {

class Form;
struct EditionSettings;

// who is 1 or 2: that taxpayer's card comes first. The people come from userSection of the edition's
// user file, the card pictures from its pictures folder. Only the first 1024 characters of the section
// are seen, as one buffer of the platform's section call holds them.
void fillTaxpayersCard(Form& form, int who, const std::string& userSection, const EditionSettings& edition);

}  // namespace lw
