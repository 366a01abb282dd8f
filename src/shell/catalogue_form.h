#pragma once
// A form of the catalogue: made from its drawing when the program has one, and set up by the shared
// lifecycle. Forms with handlers of their own derive from it. Its virtual steps are where a form keeps
// its own rules: the shared steps call them, and a form that says nothing gets the common rule.

#include <optional>
#include <string>

#include "fields/control_setup.h"
#include "model/form.h"
#include "model/program_parts.h"
#include "model/tp_info_rec.h"
#include "store/record_line.h"

namespace lw {

// How the other information of a document (the OTHER of the file name template) stands in its name.
enum class OtherInFileName {
    AsTyped,   // the first line of the field
    LastName,  // a person's name, last name first
    Omitted,
};

class CatalogueForm : public Form, public FieldRules {
public:
    CatalogueForm(const std::string& name, const ProgramParts& parts);

    // The parts of the program this form works with, handed to it when it was made.
    const ProgramParts& parts() const { return parts_; }

    // The form's own step of the common set-up, after its catalogue values are read and before its
    // looks are given: the configuration form fills its rates there.
    virtual void commonInitStep() {}
    // The form's own looks, given by the common set-up before its walk over the controls (and again
    // after a print or a clip): a form whose screen shows more than its paper sizes and shows it here.
    virtual void giveOwnLook() {}
    // The font of a text box, given by the common set-up before the box's type sets it up.
    virtual void styleTextBox(Control& box);
    // The two digits of the tax year in force on the form's year labels.
    virtual void showYearDigits(const std::string& digits);
    // The form's own refill after Clear has emptied its fields.
    virtual void refillAfterClear() {}
    // The form's own renewal after a change of the tax year.
    virtual void afterYearChange() {}

    // Placing in the frame. A form that keeps the screen (the configuration form while a rate is bad)
    // stays, and no other form opens.
    virtual bool keepsTheScreen() { return false; }
    // The field that takes the focus when the form is placed; focusOnStartup is its catalogue value.
    virtual Control& focusOnOpening(int focusOnStartup);

    // The frame's commands. Save keeps the form as a document file.
    virtual void saveCommand();
    // After Print, once the form's looks are given again: the first field takes the focus.
    virtual void afterPrinted();
    // Clear from the button or the menu: the fields emptied and the first one focused.
    virtual void clearCommand(bool fromMenu);
    // Whether Load TP fills the form with the people of the case.
    virtual bool takesTaxpayers() const { return true; }
    // Load TP's fill: who is "TP 1" or "TP 2", a the person of that button and b the other. True when the
    // form has filled itself, false for the common fill (the block to the first name field, the number to
    // the first number field).
    virtual bool fillTaxpayers(const std::string& /*who*/, const TPInfoRec& /*a*/, const TPInfoRec& /*b*/) {
        return false;
    }
    // After Load TP's fill: the focus goes back where the operator left it.
    virtual void afterTaxpayerFill();
    // Why the form may not be saved, printed or clipped as it stands; empty when it may.
    virtual std::string outputRefusal() const { return {}; }
    // Run as the program ends with the form on the screen.
    virtual void beforeProgramEnds() {}

    // Naming and saving the document. A name of the form's own, in place of the template's.
    virtual std::optional<std::string> ownFileName() const { return std::nullopt; }
    // Before naming: false when a field the form requires is blank, once the operator has been told and
    // the focus sent there; focusIndex then names that field of Text1.
    virtual bool requiredFieldsFilled(int& /*focusIndex*/) { return true; }
    virtual OtherInFileName otherInFileName() const { return OtherInFileName::AsTyped; }
    // Run once the document's line is written.
    virtual void afterSaved() {}
    // Before the document's line is built: throws a Data Error when the fields make no document.
    virtual void checkBeforeRecord() const {}

    // Reading a file into the form. The form's own reading of one key field of a line that stands
    // under recordPrefix, index being the key's: true when it has placed the value, false for the
    // common reading.
    virtual bool readRecordField(const std::string& /*recordPrefix*/, const store::RecordField& /*field*/,
                                 int /*index*/) {
        return false;
    }
    // Once the form is placed for a file, before the file's fields are read.
    virtual void beforeFileRead() {}
    // Once the file's fields are read and its dates checked.
    virtual void afterFileRead() {}
    // After the Open command has read a file into the form.
    virtual void afterFileOpened() {}

    // Clip and print. Before a clip's picture is taken; the size the operator left is put back after.
    virtual void beforeClip() {}
    // The form cut to its document for a clip or a print: true when it has cut itself, false for the
    // common cut at its border.
    virtual bool cutToDocument() { return false; }
    // A label as it stands on paper: no background of its own.
    virtual void paintLabelAsPaper(Control& label) { label.opaque = false; }
    // The form as the operator left it after a clip, once its looks are given again: true when it has
    // put itself back, false for the common return to its first field and status line.
    virtual bool putBackAfterClip() { return false; }

private:
    const ProgramParts& parts_;
};

// The font of a text box as a form chooses it.
void setTextFont(Control& box, const char* name, double size, bool bold = false);
// The common rules of the commands, for a form outside the catalogue as well.
void saveAsDocument(const ProgramParts& parts);
void focusFirstFieldAfterPrint(Form& form, OpenDocument& document, const LegendColors& legend);
void clearAndFocusFirstField(Form& form);

}  // namespace lw
