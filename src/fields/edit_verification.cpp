#include <string>

#include "fields/edit_ctl.h"
#include "fields/edit_handler.h"
#include "model/app_error.h"
#include "text/case.h"
#include "text/masks.h"
#include "text/pieces.h"

namespace lw {

bool editVerificationCode(Control& ctl, const EditContext& context) {
    constexpr const char* kLabel = "M7_Edits:EditCtl_VerificationCode";
    return runEdit(ctl, context, kLabel, {9, false}, [&] {
        const std::string& code = ctl.text;
        const int hyphens = countCharacters(code, "-", false);
        const bool rightLength = (code.size() == 16 && hyphens == 0) || (code.size() == 19 && hyphens == 3);
        if (!rightLength)
            throw AppError(
                801, "Invalid Verification Code - Format: XXXX-XXXX-XXXX-XXXX where X = (a-f, A-F, 0-9)",
                kLabel);
        // Hyphens in other places are moved to theirs; the case stays as typed.
        ctl.text = text::formatText(text::replaceAll(code, "-", ""), "@@@@-@@@@-@@@@-@@@@");
    });
}

std::int16_t countCharacters(const std::string& textGiven, const std::string& wanted, bool caseSensitive) {
    const std::string haystack = caseSensitive ? textGiven : text::toUpper(textGiven);
    const std::string needle = caseSensitive ? wanted : text::toUpper(wanted);
    std::int32_t count = 0;
    for (std::size_t i = 0; i < haystack.size(); ++i) {
        if (haystack.compare(i, needle.size(), needle) != 0) continue;
        // The count is a 16-bit integer: past its range the classic runtime overflows.
        if (++count > INT16_MAX) throw AppError(6, "Overflow");
    }
    return static_cast<std::int16_t>(count);
}

}  // namespace lw
