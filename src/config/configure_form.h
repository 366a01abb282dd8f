// ConfigureForm, the control panel and first screen: printer, file name template, tax year, filing
// status and the Social Security and Medicare figures of the year.
#pragma once

#include <array>
#include <string>

#include "model/year_rates.h"
#include "shell/catalogue_form.h"

namespace lw {

class ConfigureForm : public CatalogueForm {
public:
    explicit ConfigureForm(const ProgramParts& parts);

    // Set when the operator changes a figure; the frame's Save and Print clear it. Nothing reads it.
    bool changed = false;
    // The four file name templates, each followed by the edition's file extension.
    std::array<std::string, 4> fileNameFormats;

    Control& Frame6;  // holds the whole panel; Clip and Print cut the form at its bottom
    Control& Frame1;  // the printer frame
    Control& cbxPrinters;
    Control& lblPrinter;
    Control& lblNote;
    Control& Frame5;
    std::array<Control*, 4> optFileName{};
    Control& TaxYear0;
    Control& TaxYear1;
    Control& lblTaxYearInfo;
    Control& Label3;
    std::array<Control*, 3> optStatus{};
    Control& Frame3;
    std::array<Control*, 2> lblSS{};
    Control& txtSSRate;
    Control& txtSSMax;
    Control& Frame4;
    std::array<Control*, 4> lblMC{};
    Control& txtMCInitRate;
    Control& txtMCChgRateAfter;
    Control& txtMCRateAfter;
    Control& txtMCPartBPremiums;
    Control& labelMisc;
    Control& labelVersion;

    void onLoad() override;
    void onUnload(bool& cancel) override;
    void onGotFocus(Control& control) override;
    void onChange(Control& control) override;
    void onValidate(Control& control, bool& cancel) override;
    void onClick(Control& control, MouseButton button) override;

    void commonInitStep() override;
    void giveOwnLook() override;
    // A bad rate keeps the form on the screen.
    bool keepsTheScreen() override;
    Control& focusOnOpening(int focusOnStartup) override;
    // Save keeps the figures in the rates file; Print counts as keeping them too.
    void saveCommand() override;
    void afterPrinted() override;
    // The form holds no document: Clear from the menu only moves to the first figure.
    void clearCommand(bool fromMenu) override;
    bool takesTaxpayers() const override { return false; }
    // Changed figures are offered for saving.
    void beforeProgramEnds() override;
    // On paper the panel alone; after a clip the figures count as kept, as after Print.
    bool cutToDocument() override;
    bool putBackAfterClip() override;
    void afterYearChange() override;

    void onPrinterChosen();
    void onFileNameOption(int index);
    void onStatusOption(int index);

    // One of the six figure fields, and the figure it shows.
    bool isFigureField(const Control& control) const;
    RateItem figureItemOf(const Control& figureField) const;

private:
    // The parts of the panel from top to bottom, and the order the operator goes through them.
    void layOutPanel();
    void layOutPrinterChoice();
    void layOutFileNameChoice();
    void layOutTaxYear();
    void layOutFilingStatus();
    void layOutSocialSecurityFigures();
    void layOutMedicareFigures();
    void layOutStatusLine();
    void setTabOrder();
    void loadForm();
    void fillPrinters();
    void chooseFileNameFormat();
    // Turns an option on as code does: its Click runs only when it was off.
    void switchOn(Control& option);
};

// The configuration form's own step of the common set-up: its figures are read from the rates file into
// it and into rates, and the change point is written into the two Medicare captions in place of their
// markers.
void configureFormCommonInit(Form& form, const std::string& ssmcInfFile, Rates& rates);

// Makes the configuration form known by name.
void registerConfigureForm();

}  // namespace lw
