#include <gtest/gtest.h>

#include <set>

#include "catalogue/catalogue_table.h"
#include "catalogue/definition_reader.h"
#include "catalogue/definitions.h"
#include "store/inf_store.h"
#include "test_program.h"
#include "text/pieces.h"

namespace lw {
namespace {

std::string formsInf() { return testing::shippedDataFolder() + "/Forms.inf"; }

TEST(ShippedCatalogue, HasThirtyThreeFormsWithTheirKeys) {
    ASSERT_EQ(catalogue().size(), 33u);
    std::set<std::string> prefixes;
    for (const CatalogueEntry& entry : catalogue()) {
        SCOPED_TRACE(entry.form);
        EXPECT_EQ(store::readInfValue(entry.section, "FormName", "", formsInf()), entry.form);
        std::string prefix = store::readInfValue(entry.section, "RecordPrefix", "", formsInf());
        EXPECT_FALSE(prefix.empty());
        EXPECT_TRUE(prefixes.insert(prefix).second) << "two forms share the prefix " << prefix;
        EXPECT_EQ(formKeyOf(entry.form), entry.formKey);
    }
}

TEST(ShippedCatalogue, TheFocusOfEveryFormNamesOneOfItsFields) {
    for (const CatalogueEntry& entry : catalogue()) {
        SCOPED_TRACE(entry.form);
        std::string focus = store::readInfValue(entry.section, "FocusOnStartup", "", formsInf());
        ASSERT_FALSE(focus.empty());
        if (entry.textArrays.empty()) continue;
        EXPECT_LT(std::stoi(focus), entry.textArrays.front().count);
    }
}

TEST(ShippedCatalogue, EveryDrawingReadsAndNamesItsForm) {
    for (const EmbeddedDefinition& embedded : embeddedDefinitions()) {
        SCOPED_TRACE(embedded.formName);
        const FormDefinition* definition = nullptr;
        EXPECT_NO_THROW(definition = findDefinition(embedded.formName));
        ASSERT_NE(definition, nullptr);
        EXPECT_NE(findCatalogueEntry(definition->name), nullptr);
    }
}

TEST(ShippedCatalogue, EveryDrawingHasTheFieldsOfItsForm) {
    for (const EmbeddedDefinition& embedded : embeddedDefinitions()) {
        const FormDefinition& definition = *findDefinition(embedded.formName);
        const CatalogueEntry& entry = *findCatalogueEntry(definition.name);
        SCOPED_TRACE(entry.form);
        // The arrays have the catalogue's number of fields, each index once; a form's table may skip
        // an index (the 1099-DIV has no Text1(24) but a Text1(29)).
        for (const TextArray& array : entry.textArrays) {
            std::set<int> indexes;
            int fields = 0;
            for (const ControlDefinition& c : definition.controls) {
                if (c.control.name != array.name) continue;
                ++fields;
                EXPECT_TRUE(indexes.insert(c.control.index).second)
                    << array.name << "(" << c.control.index << ") twice";
            }
            EXPECT_EQ(fields, array.count) << array.name;
        }
        int checks = 0;
        for (const ControlDefinition& c : definition.controls) checks += c.control.name == "Check";
        EXPECT_EQ(checks, entry.checkCount);
    }
}

// The check rules of a form name only check boxes its drawing has, each box in one rule at most.
TEST(ShippedCatalogue, CheckRulesNameTheFormsOwnBoxes) {
    int formsWithRules = 0;
    for (const CatalogueEntry& entry : catalogue()) {
        SCOPED_TRACE(entry.form);
        const CheckRules& rules = checkRulesOf(entry.form);
        EXPECT_EQ(&rules, &entry.checks);
        std::set<int> boxes;
        for (const auto& [a, b] : rules.pairs)
            for (int box : {a, b}) EXPECT_TRUE(boxes.insert(box).second) << box;
        for (int box : rules.exclusiveGroup) EXPECT_TRUE(boxes.insert(box).second) << box;
        std::set<int> drawn;
        if (const FormDefinition* definition = findDefinition(entry.form))
            for (const ControlDefinition& c : definition->controls)
                if (c.control.name == "Check") drawn.insert(c.control.index);
        for (int box : boxes) EXPECT_EQ(drawn.count(box), 1u) << "Check(" << box << ") is not drawn";
        formsWithRules += !boxes.empty();
    }
    EXPECT_EQ(formsWithRules, 7);
    EXPECT_TRUE(checkRulesOf("TF_SAMPLE").pairs.empty()) << "a form outside the catalogue only toggles";
}

// The catalogue says which forms show the tax year: those, and only those, whose drawing has its labels.
TEST(ShippedCatalogue, AFormShowsTheTaxYearWhenItsDrawingHasTheLabels) {
    for (const EmbeddedDefinition& embedded : embeddedDefinitions()) {
        const FormDefinition& definition = *findDefinition(embedded.formName);
        const CatalogueEntry& entry = *findCatalogueEntry(definition.name);
        SCOPED_TRACE(entry.form);
        bool drawn = false;
        for (const ControlDefinition& c : definition.controls)
            drawn = drawn || (c.control.name == "TaxYear" && c.control.index == 1);
        EXPECT_EQ(formKeyHasTaxYear(entry.formKey), drawn);
    }
    EXPECT_TRUE(formKeyHasTaxYear("CONFIGURE"));
    EXPECT_TRUE(formKeyHasTaxYear("SAMPLE")) << "a form outside the catalogue";
}

}  // namespace
}  // namespace lw
