#include "fields/control_setup.h"

#include "model/app_error.h"
#include "model/form.h"
#include "model/open_document.h"
#include "text/case.h"
#include "text/cp1252.h"

namespace lw {

namespace {

struct AlignmentRow {
    std::vector<const char*> tags;
    int alignment;    // -1: the form's own
    int maxLength;    // 0: the form's own
    const char* tip;  // nullptr: the designer's tip stays
};

// Walked in this order; the first row whose tag equals the upper-cased Tag wins.
const std::vector<AlignmentRow>& alignmentRows() {
    static const std::vector<AlignmentRow> rows = {
        {{"%", "#", "#.#"}, 1, 0, nullptr},
        {{"MONEY", "SMONEY", "-MONEY"}, 1, 0, kMoneyTip},
        {{"AMONEY"}, 1, 0, "U or UNK for UNKNOWN, Dollar sign/comma optional"},
        {{"TIN"}, 2, 0, "SSN/TIN: Enter 3 or more numbers - First Number 9 = ITIN, else Social Security #"},
        {{"EIN"},
         2,
         0,
         "EIN/TIN: Enter 3 or more numbers beginning with 9 (e.g. 914 = 91-4XXXXXX, 91-55 = 91-55XXXXX, "
         "914234567 = 91-4234567)"},
        {{"DATE"},
         2,
         10,
         "Date: Formats allowed M/D/YYYY, MM/D/YYYY, M/DD/YYYY, MM/DD/YYYY, MM/DD - will default to Tax "
         "Year"},
        {{"DATEX"},
         2,
         10,
         "Date in Tax Year: Formats allowed M/D/YYYY, MM/D/YYYY, M/DD/YYYY, MM/DD/YYYY, MM/DD will default "
         "to TAX "
         "YEAR"},
        {{"YEAR"}, 2, 4, "Year: Enter Year ONLY (YYYY)"},
        {{"TAXYEAR"}, 2, 4, "TaxYear: Enter YYYY - If blank, Defaults to current Tax Year"},
        {{"TAXYEAR1099G"}, 2, 4, "TaxYear: Leave blank if current tax year, else enter YY or YYYY"},
        {{"SSMC"}, 1, 0, nullptr},
        {{"COMPUTED"}, -1, 0, nullptr},
        {{"CHECKBOX"}, 2, 0, nullptr},
        {{"1095C-14", "1095C-16"}, 2, 0, nullptr},
        {{"OUT OF SCOPE"}, 2, 0, nullptr},
    };
    return rows;
}

bool isMoneyTag(const std::string& tag) { return tag == "MONEY" || tag == "SMONEY" || tag == "-MONEY"; }

const FieldRules& rulesOfTheFormOf(const Control& ctl) {
    static const FieldRules common;
    const auto* rules = dynamic_cast<const FieldRules*>(ctl.form);
    return rules ? *rules : common;
}

}  // namespace

void setUpControl(Control& ctl, bool setUp, OpenDocument& document, const LegendColors& legend) {
    const std::string name = text::toUpper(ctl.name);
    if (name == "TEXT1" || name == "TEXT2" || name == "TEXT3" || name == "TEXT4" || name == "TEXT5") {
        document.lastFieldKey = ctl.name + ":" + std::to_string(ctl.index);
        if (document.currentForm) {
            if (Control* status = document.currentForm->find("labelMisc")) status->caption = ctl.toolTipText;
        }
    }
    if (setUp)
        setUpAlignment(ctl, legend);
    else
        setUpBackColor(ctl, legend);
}

void setUpAlignment(Control& ctl, const LegendColors& legend) {
    const std::string tag = text::toUpper(ctl.tag);
    const AlignmentRow* match = nullptr;
    for (const AlignmentRow& row : alignmentRows()) {
        for (const char* candidate : row.tags)
            if (tag == candidate) match = &row;
        if (match) break;
    }
    if (!match) {
        ctl.alignment = rulesOfTheFormOf(ctl).untypedFieldAlignment();
    } else {
        if (match->alignment >= 0) ctl.alignment = match->alignment;
        if (match->maxLength > 0) ctl.maxLength = match->maxLength;
        if (isMoneyTag(tag))
            rulesOfTheFormOf(ctl).giveMoneyTip(ctl);
        else if (match->tip)
            ctl.toolTipText = match->tip;
        if (tag == "COMPUTED") ctl.backColor = legend.at(7);
        if (tag == "CHECKBOX") ctl.fontBold = true;
        if (tag == "OUT OF SCOPE") {
            ctl.backColor = kOutOfScopeColor;
            // A field the training does not cover is never to take the focus.
            ctl.focusable = false;
        }
    }
    if (text::startsWithNoCase(ctl.tag, "K1")) ctl.alignment = 2;
}

void setUpBackColor(Control& ctl, const LegendColors& legend) {
    if (ctl.tag.empty()) {
        ctl.backColor = legend.at(9);
        return;
    }
    const std::string type = ctl.tag.substr(0, ctl.tag.find(text::kFieldSeparator));
    if (type == "MONEY" || type == "SMONEY" || type == "AMONEY") {
        ctl.backColor = legend.at(3);
    } else if (type == "-MONEY") {
        ctl.backColor = legend.at(4);
    } else if (type == "#" || type == "%" || type == "#.#") {
        ctl.backColor = legend.at(5);
    } else if (type == "TIN") {
        ctl.backColor = legend.at(1);
    } else if (type == "EIN") {
        ctl.backColor = legend.at(2);
    } else if (type == "DATE" || type == "DATEX") {
        ctl.maxLength = 10;
        ctl.backColor = legend.at(6);
    } else if (type == "YEAR") {
        // A year box keeps its colour on focus, unlike every other type.
        ctl.maxLength = 4;
    } else if (type == "COMPUTED") {
        ctl.backColor = legend.at(7);
    } else if (type == "K1HELP") {
        ctl.backColor = legend.at(8);
    } else if (type == "OUT OF SCOPE") {
        throw AppError(err::kInvalidProcedureCall,
                       "A field outside the training's scope took the focus: " + ctl.key());
    } else {
        ctl.backColor = legend.at(9);
    }
    ctl.select(0, 99);
}

void refocusAfterTaxpayerFill(const OpenDocument& document) {
    Form* form = document.currentForm;
    if (!form) return;
    const std::string key = document.lastFieldKey;
    const std::size_t colon = key.find(':');
    const std::string name = colon == std::string::npos ? key : key.substr(0, colon);
    const int i = colon == std::string::npos ? 0 : std::stoi(key.substr(colon + 1));
    auto focus = [&](const char* array) { form->setFocus(form->at(array, i)); };
    if (text::equalsNoCase(name, "Text1")) return focus("Text1");
    if (text::equalsNoCase(name, "Text3")) return focus("Text3");
    if (text::equalsNoCase(name, "Text5")) return focus("Text5");
    if (text::equalsNoCase(name, "Text2") || text::equalsNoCase(name, "Text4")) {
        Control& coded = form->at(name, i);
        if (coded.tag.find("K1HELP") != std::string::npos) {
            coded.locked = false;
            return form->setFocus(coded);
        }
        return focus(text::equalsNoCase(name, "Text2") ? "Text3" : "Text5");
    }
    throw AppError(err::kInvalidProcedureCall, "No field to return to: " + key);
}

}  // namespace lw
