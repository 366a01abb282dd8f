// The controls of the configuration form, laid out as a dialog panel in twips.
#include "config/configure_form.h"

namespace lw {

namespace {

constexpr int kFormWidth = 12000;
constexpr int kFormHeight = 8700;
constexpr int kMargin = 120;
constexpr int kInnerWidth = kFormWidth - 2 * kMargin;
constexpr int kLineHeight = 255;
constexpr int kFieldHeight = 315;
constexpr int kCaptionLeft = 360;
constexpr int kCaptionWidth = 6600;
constexpr int kFieldLeft = 7080;
constexpr int kFieldWidth = 1800;
constexpr int kRowStep = 390;
constexpr int kStatusTop = 8220;
constexpr Color kPrinterNoteColor = 0x00E0FFFF;

const char* const kRateTip = "Entry Formats Allowed: 6.2%, 10.3%, 7.25%. 12.65%";
const char* const kAmountTip = "Maximun allowed is 999,999";

Control& label(Control& c, const char* caption, int left, int top, int width, int height) {
    c.caption = caption;
    c.opaque = false;
    c.backColor = kButtonFace;
    c.wordWrap = true;
    c.place(left, top, width, height);
    return c;
}

void figureField(Control& c, const char* tip, int top) {
    c.tag = "SSMC";
    c.toolTipText = tip;
    c.alignment = 1;
    c.place(kFieldLeft, top, kFieldWidth, kFieldHeight);
}

}  // namespace

ConfigureForm::ConfigureForm(const ProgramParts& parts)
    : CatalogueForm("F1_Configure", parts),
      Frame6(add(ControlKind::Frame, "Frame6")),
      Frame1(add(ControlKind::Frame, "Frame1")),
      cbxPrinters(add(ControlKind::ComboBox, "cbxPrinters")),
      lblPrinter(add(ControlKind::Label, "lblPrinter")),
      lblNote(add(ControlKind::Label, "lblNote")),
      Frame5(add(ControlKind::Frame, "Frame5")),
      TaxYear0(add(ControlKind::Label, "TaxYear", 0)),
      TaxYear1(add(ControlKind::Label, "TaxYear", 1)),
      lblTaxYearInfo(add(ControlKind::Label, "lblTaxYearInfo")),
      Label3(add(ControlKind::Label, "Label3")),
      Frame3(add(ControlKind::Frame, "Frame3")),
      txtSSRate(add(ControlKind::TextBox, "txtSSRate")),
      txtSSMax(add(ControlKind::TextBox, "txtSSMax")),
      Frame4(add(ControlKind::Frame, "Frame4")),
      txtMCInitRate(add(ControlKind::TextBox, "txtMCInitRate")),
      txtMCChgRateAfter(add(ControlKind::TextBox, "txtMCChgRateAfter")),
      txtMCRateAfter(add(ControlKind::TextBox, "txtMCRateAfter")),
      txtMCPartBPremiums(add(ControlKind::TextBox, "txtMCPartBPremiums")),
      labelMisc(add(ControlKind::Label, "labelMisc")),
      labelVersion(add(ControlKind::Label, "labelVersion")) {
    caption = "Configure Social Security/Medicare Withholding Rates, Printer";
    width = kFormWidth;
    height = kFormHeight;

    layOutPanel();
    layOutPrinterChoice();
    layOutFileNameChoice();
    layOutTaxYear();
    layOutFilingStatus();
    layOutSocialSecurityFigures();
    layOutMedicareFigures();
    layOutStatusLine();
    setTabOrder();
}

void ConfigureForm::layOutPanel() {
    // A frame with no line of its own behind the whole panel, down to the status line: the document
    // that a clip or a print keeps ends at its bottom.
    Frame6.borderStyle = 0;
    Frame6.place(0, 0, kFormWidth, kStatusTop);
}

void ConfigureForm::layOutPrinterChoice() {
    // Printer and note side by side; Load fits the printer frame to the note's height.
    Frame1.place(kMargin, kMargin, 6240, 1500);
    cbxPrinters.place(240, 360, 6000, kFieldHeight);
    cbxPrinters.spokenName = "Printer to use";  // no caption stands by the list
    label(lblPrinter, "", 240, 780, 6000, 840);
    lblPrinter.backColor = kPrinterNoteColor;
    label(lblNote, "", 6480, kMargin, kFormWidth - 6480 - kMargin, 1695);
}

void ConfigureForm::layOutFileNameChoice() {
    Frame5.caption = "Choose the FILE NAME format to use";
    Frame5.place(kMargin, 1935, kInnerWidth, 1425);
    for (int i = 0; i < 4; ++i) {
        Control& option = add(ControlKind::OptionButton, "optFileName", i);
        option.backColor = kButtonFace;
        option.place(kCaptionLeft, 2205 + i * 285, kInnerWidth - 2 * kCaptionLeft + kMargin, kLineHeight);
        optFileName[static_cast<std::size_t>(i)] = &option;
    }
}

void ConfigureForm::layOutTaxYear() {
    // The year stands large, as two labels: only the second one changes.
    for (Control* year : {&TaxYear0, &TaxYear1}) {
        year->fontSize = 18;
        year->fontBold = true;
        year->opaque = false;
        year->backColor = kButtonFace;
    }
    // The two halves meet in the middle, so that the year reads as one number.
    TaxYear0.caption = "20";
    TaxYear0.alignment = 1;
    TaxYear0.place(kMargin, 3480, 600, 495);
    TaxYear1.caption = "??";
    TaxYear1.place(kMargin + 600, 3480, 600, 495);
    label(lblTaxYearInfo, "", 1440, 3480, kFormWidth - 1440 - kMargin, 660);
}

void ConfigureForm::layOutFilingStatus() {
    label(Label3, "Choose Filing Status to set withholding rates >", kMargin, 4290, 3840, kLineHeight);
    const char* statuses[] = {"Single", "Married Filing Single", "Married Filing Joint"};
    const int statusLefts[] = {4080, 6000, 8760};
    const int statusWidths[] = {1800, 2640, 2640};
    for (int i = 0; i < 3; ++i) {
        Control& option = add(ControlKind::OptionButton, "optStatus", i);
        option.caption = statuses[i];
        option.backColor = kButtonFace;
        option.place(statusLefts[i], 4260, statusWidths[i], 300);
        optStatus[static_cast<std::size_t>(i)] = &option;
    }
    // The first status is chosen as the form is designed, so that Load starts from "Single".
    optStatus[0]->value = true;
}

void ConfigureForm::layOutSocialSecurityFigures() {
    Frame3.caption = "Social Security Withholding";
    Frame3.place(kMargin, 4680, kInnerWidth, 1035);
    const char* ssCaptions[] = {"Social Security Withholding Rate:",
                                "Maximum Wages Subject to Social Security Witholding"};
    for (int i = 0; i < 2; ++i) {
        Control& c = add(ControlKind::Label, "lblSS", i);
        label(c, ssCaptions[i], kCaptionLeft, 4980 + i * kRowStep, kCaptionWidth, kLineHeight);
        lblSS[static_cast<std::size_t>(i)] = &c;
    }
    figureField(txtSSRate, kRateTip, 4935);
    figureField(txtSSMax, kAmountTip, 4935 + kRowStep);
}

void ConfigureForm::layOutMedicareFigures() {
    Frame4.caption = "Medicare Withholding";
    Frame4.place(kMargin, 5835, kInnerWidth, 2265);
    const char* mcCaptions[] = {
        "Withholding Rate on Wages up to <<INITRATE>>",
        "Wages at Which Medicare Withholding Rate Changes:", "Withholding Rate on Wages over <<WAGE>>:",
        // Until a filing status is clicked, the premium line says what the figure is.
        "Annual Medicare Part B Premiums"};
    for (int i = 0; i < 4; ++i) {
        Control& c = add(ControlKind::Label, "lblMC", i);
        label(c, mcCaptions[i], kCaptionLeft, 6135 + i * kRowStep, kCaptionWidth, i == 3 ? 660 : kLineHeight);
        lblMC[static_cast<std::size_t>(i)] = &c;
    }
    figureField(txtMCInitRate, kRateTip, 6090);
    figureField(txtMCChgRateAfter, kAmountTip, 6090 + kRowStep);
    figureField(txtMCRateAfter, kRateTip, 6090 + 2 * kRowStep);
    figureField(txtMCPartBPremiums, kAmountTip, 6090 + 3 * kRowStep);
}

void ConfigureForm::layOutStatusLine() {
    label(labelMisc, "", kMargin, kStatusTop, 7800, kLineHeight);
    label(labelVersion, "", 8040, kStatusTop, kFormWidth - 8040 - kMargin, kLineHeight);
    labelVersion.alignment = 1;
}

void ConfigureForm::setTabOrder() {
    // The operator goes from the printer through the choices to the figures.
    int tab = 0;
    cbxPrinters.tabIndex = tab++;
    for (Control* option : optFileName) option->tabIndex = tab++;
    for (Control* option : optStatus) option->tabIndex = tab++;
    for (Control* field :
         {&txtSSRate, &txtSSMax, &txtMCInitRate, &txtMCChgRateAfter, &txtMCRateAfter, &txtMCPartBPremiums})
        field->tabIndex = tab++;
    for (const auto& control : controls())
        if (control->kind == ControlKind::Label || control->kind == ControlKind::Frame)
            control->tabIndex = tab++;
}

}  // namespace lw
