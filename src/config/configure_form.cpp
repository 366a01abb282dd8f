// The configuration form's Load and handlers: printer, file name template, filing status and figures.
#include "config/configure_form.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <memory>

#include "config/rates.h"
#include "diagnostics/error_tail.h"
#include "diagnostics/message_box.h"
#include "model/app_error.h"
#include "model/edition_settings.h"
#include "model/open_document.h"
#include "model/ports.h"
#include "model/user_choices.h"
#include "shell/form_lifecycle.h"
#include "shell/form_registry.h"
#include "shell/startup.h"
#include "store/user_inf.h"
#include "shell/tax_year.h"
#include "text/case.h"
#include "text/number.h"

namespace lw {

namespace {

// Where the operator reads up on Medicare; the status frame's caption names it.
const char* const kMedicareAgencyAddress = "www.cms.gov";
constexpr int kFigureSelectionLength = 20;
constexpr int kOverflow = 6;

std::string lastTwo(const std::string& text) {
    return text.size() >= 2 ? text.substr(text.size() - 2) : text;
}

std::string replaceNoCase(std::string value, const std::string& marker, const std::string& replacement) {
    for (std::size_t at = text::findNoCase(value, marker); at != std::string::npos;
         at = text::findNoCase(value, marker, at + replacement.size()))
        value.replace(at, marker.size(), replacement);
    return value;
}

// Which option of an array is on, -1 for none.
int chosenOf(const std::array<Control*, 3>& options) {
    for (std::size_t i = 0; i < options.size(); ++i)
        if (options[i]->value) return static_cast<int>(i);
    return -1;
}

}  // namespace

void configureFormCommonInit(Form& form, const std::string& ssmcInfFile, Rates& rates) {
    loadRates(form, ssmcInfFile, rates);
    const std::string changePoint = form.at("txtMCChgRateAfter").text;
    Control& upTo = form.at("lblMC", 0);
    Control& over = form.at("lblMC", 2);
    upTo.caption = replaceNoCase(upTo.caption, "<<INITRATE>>", changePoint);
    over.caption = replaceNoCase(over.caption, "<<WAGE>>", changePoint);
}

bool ConfigureForm::isFigureField(const Control& control) const {
    for (const Control* field :
         {&txtSSRate, &txtSSMax, &txtMCInitRate, &txtMCChgRateAfter, &txtMCRateAfter, &txtMCPartBPremiums})
        if (&control == field) return true;
    return false;
}

RateItem ConfigureForm::figureItemOf(const Control& figureField) const {
    if (&figureField == &txtSSRate) return RateItem::SocialSecurityRate;
    if (&figureField == &txtSSMax) return RateItem::SocialSecurityWageBase;
    if (&figureField == &txtMCInitRate) return RateItem::MedicareRate;
    if (&figureField == &txtMCChgRateAfter) return RateItem::MedicareChangePoint;
    if (&figureField == &txtMCRateAfter) return RateItem::MedicareRateAfter;
    return RateItem::PartBPremium;
}

void ConfigureForm::onLoad() {
    runGuarded("F1_Configure:Form_Load", [this] { loadForm(); });
}

void ConfigureForm::loadForm() {
    switch (chosenOf(optStatus)) {
        case 0:
            parts().rates.filingStatus = FilingStatus::Single;
            break;
        case 1:
            parts().rates.filingStatus = FilingStatus::MarriedSeparately;
            break;
        case 2:
            parts().rates.filingStatus = FilingStatus::MarriedJointly;
            break;
        default:
            break;
    }
    Frame1.height = lblNote.height;

    const std::string& extension = parts().edition.fileExtension;
    fileNameFormats = {
        "<LAST>_<FIRST>_<FORM>_<OTHER>_<SEQ>" + extension, "<FIRST>_<LAST>_<FORM>_<OTHER>_<SEQ>" + extension,
        "<FORM>_<LAST>_<FIRST>_<OTHER>_<SEQ>" + extension, "<FORM>_<FIRST>_<LAST>_<OTHER>_<SEQ>" + extension};

    lblPrinter.caption =
        "When this form loads, it displays the last printer you chose or the\r\n"
        "default printer. If you want to change the printer, choose a printer\r\n"
        "from the drop down list. The printer you choose will be saved.";
    lblNote.caption =
        "If you make changes to the Social Security or Medicare Information below, the changes WILL NOT BE "
        "SAVED unless you press the Save Button (Upper Left on this Screen).\r\n"
        "This information used to determine Social Security and Medicare Withholding when a W2 is created";
    lblTaxYearInfo.caption =
        "Press [Change Tax Yr] button to cycle between This Year, Next Year, Last Year and 20XX.\r\n"
        "All forms created will be for the year shown here. NOTE: If [Change Tax Yr] button is\r\n"
        "pressed on a different form, (e.g. the W2), change will apply to ALL forms, including this form.";

    TaxYear1.caption = lastTwo(setUpTaxYears(parts()));

    initCatalogueForm(*this);

    fillPrinters();

    const char* const examples[] = {
        "LastName_FirstName_FormName_OtherInfo_SEQ", "DOE_JOHN_W2_ABC PLUMBING_000",
        "FirstName_LastName_FormName_OtherInfo_SEQ", "JOHN_DOE_W2_ABC PLUMBING_000",
        "FormName_LastName_FirstName_OtherInfo_SEQ", "W2_DOE_JOHN_ABC PLUMBING_000",
        "FormName_FirstName_LastName_OtherInfo_SEQ", "W2_JOHN_DOE_ABC PLUMBING_000"};
    for (std::size_t i = 0; i < optFileName.size(); ++i)
        optFileName[i]->caption =
            std::string(examples[2 * i]) + extension + " (e.g. " + examples[2 * i + 1] + extension + ")";

    chooseFileNameFormat();
}

void ConfigureForm::fillPrinters() {
    const std::vector<std::string> machine = parts().platform.printers();
    cbxPrinters.items.clear();
    for (const std::string& printer : machine)
        if (std::find(cbxPrinters.items.begin(), cbxPrinters.items.end(), printer) == cbxPrinters.items.end())
            cbxPrinters.items.push_back(printer);

    auto select = [this](std::size_t entry) {
        const bool moved = cbxPrinters.listIndex != static_cast<int>(entry);
        cbxPrinters.listIndex = static_cast<int>(entry);
        cbxPrinters.text = cbxPrinters.items[entry];
        cbxPrinters.select(0, static_cast<int>(cbxPrinters.text.size()));
        if (moved) onPrinterChosen();
    };
    const std::string remembered = readUserInf(parts(), "Printer");
    if (remembered.empty()) {
        // With no printer on the machine there is nothing to remember.
        if (cbxPrinters.items.empty()) return;
        writeUserInf(parts(), "Printer", cbxPrinters.items.front());
        select(0);
        return;
    }
    auto it = std::find(cbxPrinters.items.begin(), cbxPrinters.items.end(), remembered);
    if (it != cbxPrinters.items.end()) select(static_cast<std::size_t>(it - cbxPrinters.items.begin()));
}

void ConfigureForm::chooseFileNameFormat() {
    const std::string remembered = readUserInf(parts(), "FileNameFmt");
    if (remembered.empty()) {
        switchOn(*optFileName[0]);
        return;
    }
    const std::optional<double> number = text::toDouble(remembered);
    if (!number) throw AppError(err::kTypeMismatch, "Type mismatch");
    // A control array's index is a 16-bit integer: a number beyond it overflows before any option is
    // looked at, and one within it that names no option (below 0 too) is a missing element.
    const double index = std::nearbyint(*number);
    if (!(index >= INT16_MIN && index <= INT16_MAX)) throw AppError(kOverflow, "Overflow");
    Control* option = index >= 0 ? find("optFileName", static_cast<int>(index)) : nullptr;
    if (!option)
        throw AppError(
            err::kControlArrayElementMissing,
            "Control array element '" + std::to_string(static_cast<int>(index)) + "' doesn't exist");
    switchOn(*option);
}

void ConfigureForm::switchOn(Control& option) {
    if (option.value) return;
    for (Control* other : arrayOf(option.name)) other->value = false;
    option.value = true;
    onClick(option, MouseButton::Left);
}

void ConfigureForm::onClick(Control& control, MouseButton) {
    // Only a chosen entry is a printer; a click that chooses nothing leaves the remembered one.
    if (&control == &cbxPrinters && cbxPrinters.listIndex >= 0) onPrinterChosen();
    if (control.kind != ControlKind::OptionButton) return;
    if (text::equalsNoCase(control.name, "optFileName")) onFileNameOption(control.index);
    if (text::equalsNoCase(control.name, "optStatus")) onStatusOption(control.index);
}

void ConfigureForm::onPrinterChosen() {
    runGuarded("F1_Configure:cbxPrinters_Click", [this] {
        parts().choices.printerName = cbxPrinters.text;
        writeUserInf(parts(), "Printer", cbxPrinters.text);
    });
}

void ConfigureForm::onFileNameOption(int fieldIndex) {
    runGuarded("F1_Configure:optFileName_Click", [this, fieldIndex] {
        writeUserInf(parts(), "FileNameFmt", std::to_string(fieldIndex));
        parts().choices.fileNameFormat = fileNameFormats.at(static_cast<std::size_t>(fieldIndex));
    });
}

void ConfigureForm::onStatusOption(int) {
    runGuarded("F1_Configure:optStatus_Click", [this] {
        static const struct {
            FilingStatus status;
            const char* income;
        } byOption[] = {{FilingStatus::SingleByOption, "106,000"},
                        {FilingStatus::MarriedSeparately, "106,000"},
                        {FilingStatus::MarriedJointly, "212,000"}};
        const int chosen = chosenOf(optStatus);
        if (chosen < 0) return;
        const auto& row = byOption[chosen];
        parts().rates.filingStatus = row.status;
        Frame4.caption = text::replaceAll(
            std::string("Medicare Info --- Goto ") + kMedicareAgencyAddress + " --- Filing Status: <STATUS>",
            "<STATUS>", filingStatusWord(row.status));
        const std::string premiums =
            "Annual Medicare Part B Premiums for taxpayers with|income up to $<INC>.|Premium may be more for "
            "income over $<INC>.";
        lblMC[3]->caption = text::replaceAll(text::replaceAll(premiums, "<INC>", row.income), "|", "\r\n");
        lblMC[2]->caption =
            text::replaceAll("Withholding Rate on Wages over <<WAGE>>:", "<<WAGE>>", row.income);
        txtMCChgRateAfter.text = row.income;
    });
}

void ConfigureForm::onGotFocus(Control& control) {
    if (!isFigureField(control)) return;
    control.select(0, kFigureSelectionLength);
}

void ConfigureForm::onChange(Control& control) {
    if (isFigureField(control)) changed = true;
}

void ConfigureForm::onValidate(Control& control, bool& cancel) {
    if (!isFigureField(control)) return;
    const bool isRate = &control == &txtSSRate || &control == &txtMCInitRate || &control == &txtMCRateAfter;
    const bool good = isRate ? checkRateField(control) : checkRateAmountField(control);
    if (!good) {
        control.select(0, static_cast<int>(control.text.size()));
        cancel = true;
    }
    // A W-2 uses the figure at once, good or not, before and without any Save.
    parts().rates.set(figureItemOf(control), control.text);
}

void ConfigureForm::onUnload(bool&) {
    runGuarded("F1_Configure:Form_Unload", [this] {
        if (parts().rates.filingStatus != FilingStatus::NotChosen) return;
        const MessageBoxRequest ask{
            name(),
            "Filing Status not chosen - Choose Now",
            kNoMessageNumber,
            {"Married Filing Single - MFS", "Single - S", "Married Filing Joint - MFJ", ""}};
        // Each button names its status after the dash; a box closed without one leaves none.
        static const FilingStatus statuses[] = {FilingStatus::NotChosen, FilingStatus::MarriedSeparately,
                                                FilingStatus::SingleOnClosing, FilingStatus::MarriedJointly,
                                                FilingStatus::NotChosen};
        parts().rates.filingStatus = statuses[static_cast<int>(showMessageBox(parts().desktop, ask).button)];
        parts().ui.quit();
    });
}

void ConfigureForm::commonInitStep() {
    configureFormCommonInit(*this, parts().edition.ssmcInfFile, parts().rates);
}

// The figures are read into the document's current form, the one the change of year works on.
void ConfigureForm::afterYearChange() {
    if (Form* current = parts().document.currentForm)
        loadRates(*current, parts().edition.ssmcInfFile, parts().rates);
}

void ConfigureForm::giveOwnLook() { lblPrinter.opaque = true; }

bool ConfigureForm::keepsTheScreen() { return !validateAllRates(*this); }

Control& ConfigureForm::focusOnOpening(int) { return cbxPrinters; }

void ConfigureForm::saveCommand() {
    storeRates(*this, parts().edition.ssmcInfFile, parts().rates);
    changed = false;
}

void ConfigureForm::afterPrinted() {
    changed = false;
    setFocus(cbxPrinters);
}

void ConfigureForm::clearCommand(bool fromMenu) {
    if (fromMenu) setFocus(txtSSRate);
}

void ConfigureForm::beforeProgramEnds() { offerToSaveChangedRates(*this, parts()); }

bool ConfigureForm::cutToDocument() {
    height = Frame6.top + Frame6.height;
    return true;
}

bool ConfigureForm::putBackAfterClip() {
    afterPrinted();
    return true;
}

void registerConfigureForm() {
    registerForm("F1_Configure",
                 [](const ProgramParts& parts) { return std::make_unique<ConfigureForm>(parts); });
}

}  // namespace lw
