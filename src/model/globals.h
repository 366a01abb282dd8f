#pragma once
// The process-wide values of the program: what outlives a form, under the names the program knows them by.

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "model/color.h"
#include "model/save_outcome.h"
#include "model/tp_info_rec.h"

namespace lw {

class Form;

struct Globals {
    // Start-up and process flags.
    std::string CommandWords;
    bool bDebug = false;
    bool bStartup = false;
    bool bQuitting = false;
    std::string ComputerNameUC;
    std::string UserNameUC;

    // Paths and file types of the edition.
    std::string FormsInfFile;
    std::string SSMCInfFile;
    std::string K1HelpInfFile;
    std::string PicturesFolder;
    std::string UserInfFile;
    std::string UserGuideFile;
    std::string FileExtension;
    std::string FileFilter;  // description, NUL, pattern, NUL
    std::string LastOpenFolder;
    std::string LastSaveFolder;

    std::array<Color, 10> LegendColors{};
    std::string LastFieldKey;
    // Rows TP1, TP2, OP1..OP7: slot, Text1 index of the birth date, Text2 index of the age.
    std::array<std::array<std::string, 3>, 9> PersonTable{};
    // The two taxpayers as the last Load TP read them. A person the store lacks keeps the parts parsed
    // from the block read before, for as long as the program runs.
    TPInfoRec TP1Info;
    TPInfoRec TP2Info;

    // The design Text of the K-1 code fields (Text2, Text4) and the design Tag of their amounts (Text3,
    // Text5), kept at each K-1 form's load: Clear puts them back and the code list takes back an override.
    std::vector<std::string> K1Text2;
    std::vector<std::string> K1Tag3;
    std::vector<std::string> K1Text4;
    std::vector<std::string> K1Tag5;

    // The form that the shared procedures work on, and the values of it read from the catalogue.
    Form* CurrentForm = nullptr;
    std::string FormKey;
    std::string CurrentFileName;
    std::string FormRecord;
    // How the form for an existing file ended the last save that showed it.
    std::optional<SaveOutcome> lastSaveOutcome;

    // Values of the catalogue for the form on the screen, refreshed whenever a form opens.
    std::string FormTitle;
    std::string RecordPrefix;
    std::string SSNIndex;
    std::string NameAddrIndex;
    std::string NameOnlyIndex;
    std::string DOBIndex;
    std::string MedicareClaimNoIndex;
    std::string MedicareNoIndex;
    std::string EINIndex;
    std::string OtherInfo;
    int FocusOnStartup = 0;
    int FocusAfterTPButton = 0;

    // The printer chosen on the configuration form, and the file name template of the four.
    std::string PrinterName;
    // The printer that pages go to: the configured one once a print has found it among the machine's
    // printers, else the machine's default (empty).
    std::string CurrentPrinter;

    // The holidays that move a license's issue date: a comma list of MM/DD, and the same list split.
    std::string DL_HolidayList;
    std::vector<std::string> DL_Holidays;
    std::string FileNameFormat;

    // The tax year: Last Year, This Year, Next Year and "20XX".
    std::array<std::string, 4> TaxYears{};
    int TaxYearIndex = 1;

    // Rates of the tax year in force, as text.
    std::string FilingStatus;
    std::string SSRate;
    std::string SSMax;
    std::string MCInitRate;
    std::string MCChgRateAfter;
    std::string MCRateAfter;
    std::string MCPartBPremium;
    std::string MCPartBIncome;
};

}  // namespace lw
