// What each form says to the frame's commands: where its focus goes on opening and after Print, what
// Save and Clear do on it, whether Load TP fills it, and why it may not be kept as it stands.
#include <gtest/gtest.h>

#include "config/configure_form.h"
#include "forms/form_rrb1099.h"
#include "forms/form_ssa1099.h"
#include "forms/tpinfo_form.h"
#include "model/containers.h"
#include "opened_form.h"
#include "shell/form_lifecycle.h"
#include "store/inf_store.h"
#include "taxpayer/load_tp.h"

namespace lw {
namespace {

struct FormCommands : testing::FormUnderTest<CatalogueForm> {
    CatalogueForm& open(const char* menuItem) {
        desktop().chooseMenu(menuItem);
        form = dynamic_cast<CatalogueForm*>(desktop().activeChild());
        if (!form) throw std::runtime_error(std::string("nothing opened from ") + menuItem);
        return *form;
    }
    Globals& g() { return test.program->g; }
};

TEST_F(FormCommands, AFormOpensOnTheFieldOfItsCatalogueValue) {
    CatalogueForm& w2 = open("mnuW2");
    EXPECT_EQ(&w2.focusOnOpening(3), &w2.at("Text1", 3));
    EXPECT_EQ(focus(), &w2.at("Text1", g().document.catalogue.focusOnStartup));
}

TEST_F(FormCommands, TheConfigurationOpensOnItsPrinters) {
    auto& configure = dynamic_cast<ConfigureForm&>(open("mnuControlConfigure"));
    EXPECT_EQ(&configure.focusOnOpening(3), &configure.cbxPrinters);
}

TEST_F(FormCommands, AfterPrintTheFirstFieldTakesTheFocusOrOnTheConfigurationThePrinters) {
    CatalogueForm& w2 = open("mnuW2");
    desktop().setFocus(w2.at("Text1", 4));
    w2.afterPrinted();
    EXPECT_EQ(focus(), &w2.at("Text1", 0));

    auto& configure = dynamic_cast<ConfigureForm&>(open("mnuControlConfigure"));
    configure.changed = true;
    desktop().setFocus(configure.txtSSMax);
    configure.afterPrinted();
    EXPECT_EQ(focus(), &configure.cbxPrinters);
    EXPECT_FALSE(configure.changed) << "a print counts as keeping the figures";
}

TEST_F(FormCommands, ClearEmptiesADocumentButOnlyMovesTheFocusOnTheConfiguration) {
    CatalogueForm& w2 = open("mnuW2");
    w2.at("Text1", 4).text = "ABC PLUMBING";
    desktop().setFocus(w2.at("Text1", 4));
    w2.clearCommand(false);
    EXPECT_EQ(w2.at("Text1", 4).text, "");
    EXPECT_EQ(focus(), &w2.at("Text1", 0));

    auto& configure = dynamic_cast<ConfigureForm&>(open("mnuControlConfigure"));
    const std::string rate = configure.txtSSRate.text;
    desktop().setFocus(configure.txtSSMax);
    configure.clearCommand(false);
    EXPECT_EQ(focus(), &configure.txtSSMax);
    configure.clearCommand(true);
    EXPECT_EQ(focus(), &configure.txtSSRate);
    EXPECT_EQ(configure.txtSSRate.text, rate);
}

TEST_F(FormCommands, SaveOnTheConfigurationKeepsTheFiguresInTheRatesFile) {
    auto& configure = dynamic_cast<ConfigureForm&>(open("mnuControlConfigure"));
    configure.txtSSMax.text = "200,000.00";
    configure.changed = true;
    configure.saveCommand();
    const std::string year = g().taxYear.text();
    EXPECT_EQ(store::readInfValue(year, "SSMax", "", g().edition.ssmcInfFile), "200000");
    EXPECT_FALSE(configure.changed);
}

TEST_F(FormCommands, LoadTPFillsEveryFormButTheSheetAndTheConfiguration) {
    EXPECT_TRUE(open("mnuW2").takesTaxpayers());
    EXPECT_TRUE(open("mnuIDFormsSSITIN").takesTaxpayers());
    EXPECT_FALSE(open("mnuIDFormsTP").takesTaxpayers());
    EXPECT_FALSE(open("mnuControlConfigure").takesTaxpayers());
}

TEST_F(FormCommands, LoadTPOnAK1ShowsTheHalfThePeopleWentToForASecond) {
    CatalogueForm& estate = open("mnuK11041");
    Control& estateTabs = estate.at("SSTab1");
    ASSERT_EQ(tabOf(estateTabs), 0);
    test.platform.sleeps.clear();
    readTaxpayers(test.program->parts, "TP 1");
    EXPECT_EQ(test.platform.sleeps, std::vector<int>{1000}) << "the other half, for a second";
    EXPECT_EQ(tabOf(estateTabs), 0);

    CatalogueForm& partnership = open("mnuK11065");
    Control& tabs = partnership.at("SSTab1");
    test.platform.sleeps.clear();
    readTaxpayers(test.program->parts, "TP 1");
    EXPECT_TRUE(test.platform.sleeps.empty()) << "the first half is on show already";
    setTab(tabs, 1);
    readTaxpayers(test.program->parts, "TP 1");
    EXPECT_EQ(test.platform.sleeps, std::vector<int>{1000});
    EXPECT_EQ(tabOf(tabs), 1);
}

TEST_F(FormCommands, ABenefitStatementWithAnAmountBelowZeroRefusesOutputUntilMended) {
    auto& ssa = dynamic_cast<FormSsa1099&>(open("mnuSSA1099"));
    EXPECT_EQ(ssa.outputRefusal(), "");
    ssa.computationFailed = true;
    EXPECT_EQ(ssa.outputRefusal(), "Error On SSA1099 Form, Correct Before Saving, Printing or Clipping");

    auto& rrb = dynamic_cast<FormRrb1099&>(open("mnuRRB1099"));
    EXPECT_EQ(rrb.outputRefusal(), "");
    rrb.computationFailed = true;
    EXPECT_EQ(rrb.outputRefusal(), "Error On RRB1099 Form, Correct Before Saving, Printing or Clipping");
    EXPECT_EQ(open("mnuW2").outputRefusal(), "");
}

}  // namespace
}  // namespace lw
