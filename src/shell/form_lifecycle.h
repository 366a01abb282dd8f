#pragma once
// The shared life of every form of the catalogue: set-up, captions with the tax year, placing in the
// frame (one form at a time), clearing, and the yearly re-dating.

#include "model/form.h"
#include "model/tax_year_choice.h"

namespace lw {

// First statement of every catalogue form's Load: CurrentForm, the catalogue values, looks and captions.
void initCatalogueForm(Form& frm);
// Fonts, colours and field set-up of CurrentForm; also run after printing to restore its look.
void resetFormLook();
// Writes the tax year into the labels of CurrentForm and reads its long texts; a year not set up yet
// writes nothing.
void writeYearCaptions(const TaxYearChoice& taxYear);
// Sizes the border shape to all the controls of its form.
void sizeBorderToControls(Control& myBorder);
// Places a form in the frame, unloading every other child, unless a form on the screen keeps it (the
// configuration form while its rates are bad).
void placeInFrame(Form& frm);
// Opens a form of the catalogue by name: creates it when needed and places it.
Form* openCatalogueForm(const std::string& formName);
bool formHasTaxYear();
// The height the frame's child area offers a form.
int frameInnerHeight();
// The Change Tax Yr button: the next year of the cycle, for every form.
void changeTaxYear(Form& frm);
// Re-checks the dates of CurrentForm against the year in force; the first bad one keeps its error.
void recheckYearDates();
void clearForm();

// The check labels of the forms: "X" or empty.
void toggleCheck(Control& chk);
void toggleCheckPair(Control& chk, Control& partner);

}  // namespace lw
