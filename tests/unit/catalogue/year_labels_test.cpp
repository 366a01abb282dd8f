// The tax year stands as two labels, "20" and the two digits the program writes: they meet, the first
// aligned to the right, so that the year reads as one number.
#include <gtest/gtest.h>

#include "catalogue/definitions.h"
#include "model/form.h"

namespace lw {
namespace {

TEST(YearLabels, TheTwoHalvesOfTheYearMeet) {
    int forms = 0;
    for (const EmbeddedDefinition& embedded : embeddedDefinitions()) {
        Form form(embedded.formName);
        realizeDefinition(*findDefinition(embedded.formName), form);
        const Control* century = form.find("TaxYear", 0);
        const Control* year = form.find("TaxYear", 1);
        if (!century || !year) continue;
        ++forms;
        EXPECT_EQ(century->left + century->width, year->left) << embedded.formName;
        EXPECT_EQ(century->top, year->top) << embedded.formName;
        EXPECT_EQ(century->alignment, 1) << embedded.formName << ": the century is aligned to the right";
        EXPECT_EQ(year->alignment, 0) << embedded.formName;
    }
    EXPECT_GT(forms, 10);
}

}  // namespace
}  // namespace lw
