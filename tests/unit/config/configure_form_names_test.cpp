// A screen reader tells the fields of the configuration form apart by the captions beside them.
#include <gtest/gtest.h>

#include <set>

#include "catalogue/field_names.h"
#include "configure_form_fixture.h"

namespace lw::test {
namespace {

TEST_F(ConfigureFormTest, EveryFieldOfTheLoadedFormHasANameOfItsOwn) {
    ConfigureForm& f = open();
    const auto names = fieldNamesOf(f);
    std::set<std::string> seen;
    for (const auto& [field, name] : names) {
        EXPECT_FALSE(name.text.empty()) << field->key();
        EXPECT_TRUE(seen.insert(name.text).second) << field->key() << " says " << name.text;
    }
    EXPECT_EQ(names.at(&f.txtSSRate).text, "Social Security Withholding Rate");
    EXPECT_EQ(names.at(&f.txtSSMax).text, "Maximum Wages Subject to Social Security Witholding");
    EXPECT_EQ(names.at(&f.txtMCChgRateAfter).text, "Wages at Which Medicare Withholding Rate Changes");
    EXPECT_EQ(names.at(&f.cbxPrinters).text, "Printer to use");
}

}  // namespace
}  // namespace lw::test
