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
        EXPECT_EQ(store::ReadINF(entry.section, "FormName", "", formsInf()), entry.form);
        std::string prefix = store::ReadINF(entry.section, "RecordPrefix", "", formsInf());
        EXPECT_FALSE(prefix.empty());
        EXPECT_TRUE(prefixes.insert(prefix).second) << "two forms share the prefix " << prefix;
        EXPECT_EQ(formKeyOf(entry.form), entry.formKey);
    }
}

TEST(ShippedCatalogue, TheFocusOfEveryFormNamesOneOfItsFields) {
    for (const CatalogueEntry& entry : catalogue()) {
        SCOPED_TRACE(entry.form);
        std::string focus = store::ReadINF(entry.section, "FocusOnStartup", "", formsInf());
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
        for (const TextArray& array : entry.textArrays) {
            for (int i = 0; i < array.count; ++i) {
                int found = 0;
                for (const ControlDefinition& c : definition.controls)
                    found += c.control.name == array.name && c.control.index == i;
                EXPECT_EQ(found, 1) << array.name << "(" << i << ")";
            }
        }
        int checks = 0;
        for (const ControlDefinition& c : definition.controls) checks += c.control.name == "Check";
        EXPECT_EQ(checks, entry.checkCount);
    }
}

}  // namespace
}  // namespace lw
