#include "forms/license_form.h"

#include "diagnostics/error_tail.h"
#include "fields/edit_ctl.h"
#include "forms/license_dates.h"
#include "model/program.h"
#include "shell/form_lifecycle.h"
#include "shell/form_registry.h"
#include "shell/paths.h"
#include "text/case.h"

namespace lw {

LicenseForm::LicenseForm() : TaxForm("F3_DL") {}

void LicenseForm::onLoad() {
    TaxForm::onLoad();
    for (Control* portrait : arrayOf("picDL"))
        portrait->picture = portraitFile(program().g.edition.picturesFolder, portrait->index + 1);
    program().g.choices.holidayList = kFixedHolidays;
    buildLicenseHolidays();
}

void LicenseForm::onClick(Control& ctl, MouseButton button) {
    if (!text::equalsNoCase(ctl.name, "picDL") || ctl.index < 0) return TaxForm::onClick(ctl, button);
    const bool first = button == MouseButton::Left;
    at(first ? "Picture2" : "Picture4").picture = ctl.picture;
    chosenPicture(first ? 1 : 2) = ctl.index + 1;
}

void LicenseForm::onValidate(Control& ctl, bool& Cancel) {
    if (!isFieldArray(ctl)) return;
    if (!editField(ctl)) {
        ctl.select(0, 99);
        setFocus(ctl);
        Cancel = true;
        return;
    }
    // A fault of the dates, such as a February 29 birthday in a year without one, is reported and the
    // field is left.
    runGuarded("F3_DL:Text1_Validate", [&] { fillAfterLeaving(ctl, Cancel); });
}

void LicenseForm::fillAfterLeaving(Control& ctl, bool& Cancel) {
    if (ctl.name != "Text1") return;
    auto field = [&](int index) -> Control& { return at("Text1", index); };
    switch (ctl.index) {
        case 0:
            // The first license must have a name; the field is simply kept, with no word.
            if (ctl.text.empty())
                Cancel = true;
            else
                field(2).text = program().platform.now().toStampText();
            break;
        case 1:
            fillLicenseDates("1", ctl.text, field(8), field(3));
            break;
        case 4:
            if (!ctl.text.empty()) field(6).text = program().platform.now().toStampText();
            break;
        case 5:
            fillLicenseDates("2", ctl.text, field(9), field(7));
            break;
        default:
            break;
    }
}

void LicenseForm::refillAfterClear() {
    license1PictureIndex = 0;
    license2PictureIndex = 0;
}

void registerLicenseForm() {
    registerForm("F3_DL", [] { return std::make_unique<LicenseForm>(); });
}

}  // namespace lw
