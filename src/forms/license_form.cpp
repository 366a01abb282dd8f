#include "forms/license_form.h"

#include "diagnostics/error_tail.h"
#include "fields/edit_ctl.h"
#include "forms/license_dates.h"
#include "model/edition_settings.h"
#include "model/ports.h"
#include "shell/form_lifecycle.h"
#include "shell/form_registry.h"
#include "shell/paths.h"
#include "taxpayer/load_tp.h"
#include "text/case.h"

namespace lw {

LicenseForm::LicenseForm(const ProgramParts& parts) : TaxForm("F3_DL", parts) {}

void LicenseForm::onLoad() {
    TaxForm::onLoad();
    for (Control* portrait : arrayOf("picDL"))
        portrait->picture = portraitFile(parts().edition.picturesFolder, portrait->index + 1);
    parts().choices.holidayList = kFixedHolidays;
    buildLicenseHolidays(parts().choices, parts().taxYear);
}

void LicenseForm::onClick(Control& ctl, MouseButton button) {
    if (!text::equalsNoCase(ctl.name, "picDL") || ctl.index < 0) return TaxForm::onClick(ctl, button);
    const bool first = button == MouseButton::Left;
    at(first ? "Picture2" : "Picture4").picture = ctl.picture;
    chosenPicture(first ? 1 : 2) = ctl.index + 1;
}

void LicenseForm::onValidate(Control& ctl, bool& cancel) {
    if (!isFieldArray(ctl)) return;
    if (!editField(ctl, editContextOf(parts()))) {
        ctl.select(0, 99);
        setFocus(ctl);
        cancel = true;
        return;
    }
    // A fault of the dates, such as a February 29 birthday in a year without one, is reported and the
    // field is left.
    runGuarded("F3_DL:Text1_Validate", [&] { fillAfterLeaving(ctl, cancel); });
}

void LicenseForm::fillAfterLeaving(Control& ctl, bool& cancel) {
    if (ctl.name != "Text1") return;
    auto field = [&](int index) -> Control& { return at("Text1", index); };
    switch (ctl.index) {
        case 0:
            // The first license must have a name; the field is simply kept, with no word.
            if (ctl.text.empty())
                cancel = true;
            else
                field(2).text = parts().platform.now().toStampText();
            break;
        case 1:
            fillLicenseDates("1", ctl.text, parts().platform.now().year, parts().choices.holidays, field(8),
                             field(3));
            break;
        case 4:
            if (!ctl.text.empty()) field(6).text = parts().platform.now().toStampText();
            break;
        case 5:
            fillLicenseDates("2", ctl.text, parts().platform.now().year, parts().choices.holidays, field(9),
                             field(7));
            break;
        default:
            break;
    }
}

void LicenseForm::giveOwnLook() {
    Control& choices = at("Frame1");
    choices.visible = true;
    height = choices.top + choices.height + 200;
    at("Picture1").visible = true;
    at("Picture3").visible = true;
    for (const auto& owned : controls())
        if (owned->kind == ControlKind::Picture) owned->visible = true;
}

bool LicenseForm::cutToDocument() {
    at("Frame1").visible = false;
    const Control& status = at("labelMisc");
    height = status.top + 300;
    if (at("Text1", 4).text.empty()) at("Picture3").visible = false;
    setFocus(at("Text1", 0));
    return true;
}

bool LicenseForm::fillTaxpayers(const std::string&, const TPInfoRec& a, const TPInfoRec& b) {
    fillTaxpayersLicense(*this, a, b);
    // A license runs out on the birthday five years on.
    const DateTime now = parts().platform.now();
    auto text = [&](int index) -> std::string& { return at("Text1", index).text; };
    const std::string inFiveYears = std::to_string(now.year + 5);
    text(2) = now.toStampText();
    text(3) = text(1).substr(0, 6) + inFiveYears;
    if (!text(4).empty()) text(6) = parts().platform.now().toStampText();
    if (!text(5).empty()) text(7) = text(5).substr(0, 6) + inFiveYears;
    return true;
}

void LicenseForm::refillAfterClear() {
    license1PictureIndex = 0;
    license2PictureIndex = 0;
}

void registerLicenseForm() {
    registerForm("F3_DL", [](const ProgramParts& parts) { return std::make_unique<LicenseForm>(parts); });
}

}  // namespace lw
