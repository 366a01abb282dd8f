#include <string>
#include <vector>

#include "diagnostics/error_tail.h"
#include "diagnostics/message_box.h"
#include "fields/edit_ctl.h"
#include "fields/edit_handler.h"
#include "model/app_error.h"
#include "model/open_document.h"
#include "text/case.h"
#include "text/masks.h"
#include "text/number.h"
#include "text/pieces.h"

namespace lw {

namespace {

// Both identifier edits fail in the colour of EIN and show the text they raised.
constexpr EditFailure kIdentifierFailure{2, true};
constexpr std::size_t kDigits = 9;
const char* const kFirstThree = "First 3 Charaters MUST BE Numeric";

std::string without(std::string value, const char* what) { return text::replaceAll(value, what, ""); }

void requireNumericStart(const std::string& value, const char* source) {
    if (value.size() < 3 || !text::isNumeric(value.substr(0, 3))) throw AppError(801, kFirstThree, source);
}

}  // namespace

bool editEin(Control& ctl, const EditContext& context) {
    constexpr const char* kLabel = "M7_Edits:EditCtl_EIN";
    return runEdit(ctl, context, kLabel, kIdentifierFailure, [&] {
        std::string ein = text::toUpper(without(ctl.text, "-"));
        requireNumericStart(ein, kLabel);
        if (ein.compare(0, 2, "00") == 0) throw AppError(802, "EIN can't start with 00", kLabel);
        ein = without(ein, "X");
        if (ein.size() < kDigits) ein.append(kDigits - ein.size(), 'X');
        // A longer number loses its middle: the prefix and the last seven are shown.
        ctl.text = ein.substr(0, 2) + "-" + ein.substr(ein.size() - 7);
    });
}

bool editSsnOrItin(Control& ctl, const EditContext& context) {
    constexpr const char* kLabel = "M7_Edits:EditCtl_SS_ITIN";
    return runEdit(ctl, context, kLabel, kIdentifierFailure, [&] {
        std::string tin = without(text::toUpper(without(ctl.text, "-")), "X");
        requireNumericStart(tin, kLabel);
        const std::string prefix = tin.substr(0, 3);
        if (prefix == "000" || prefix == "666")
            throw AppError(801, "SSN/ITIN can't begin with '" + prefix + "'", kLabel);
        // The fill count of a number longer than nine goes negative: a run-time fault, not a data error.
        if (tin.size() > kDigits)
            throw AppError(err::kInvalidProcedureCall, "Invalid procedure call or argument");
        tin.append(kDigits - tin.size(), 'X');
        ctl.text = text::formatText(tin, "@@@-@@-@@@@");
    });
}

std::int32_t checkDuplicateNumbers(const std::string& indexList, int fieldIndex, const OpenDocument& document,
                                   Desktop& desktop) {
    std::int32_t result = 99;
    runGuarded("M7_Edits:DuplicateTinCheck", [&] {
        if (!document.currentForm) throw AppError(err::kObjectRequired, "Object required");
        Form& form = *document.currentForm;
        Control& field = form.at("Text1", fieldIndex);
        if (field.text.empty()) return;
        // The loop counter, not the list's items, picks the fields compared.
        const int count = static_cast<int>(text::split(indexList, ",").size());
        for (int i = 0; i < count; ++i) {
            if (i == fieldIndex || form.at("Text1", i).text != field.text) continue;
            result = i;
            field.select(0, 12);
            if (Control* status = form.find("labelMisc")) {
                status->caption = "Duplicate SSN/ITIN number";
                status->foreColor = kRed;
            }
            showMessageBox(desktop, {"DuplicateTinCheck", "Duplicate SS/ITIN Number on this screen"});
            return;
        }
    });
    return result;
}

}  // namespace lw
