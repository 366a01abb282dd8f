// What each form does to stand on paper for a clip or a print, and how it comes back afterwards.
#include <gtest/gtest.h>

#include "forms/k1_paper.h"
#include "model/containers.h"
#include "opened_form.h"
#include "output/screen_clip.h"
#include "shell/catalogue_form.h"

namespace lw {
namespace {

struct FormPaper : testing::FormUnderTest<CatalogueForm> {
    CatalogueForm& open(const char* menuItem) {
        desktop().chooseMenu(menuItem);
        form = dynamic_cast<CatalogueForm*>(desktop().activeChild());
        if (!form) throw std::runtime_error(std::string("nothing opened from ") + menuItem);
        return *form;
    }
    static int bottomOf(const Control& c) { return c.top + c.height; }
};

TEST_F(FormPaper, TheBenefitStatementsEndAtTheirLastLabel) {
    CatalogueForm& ssa = open("mnuSSA1099");
    EXPECT_TRUE(ssa.cutToDocument());
    EXPECT_EQ(ssa.height, bottomOf(ssa.at("Label1", 33)));
    CatalogueForm& rrb = open("mnuRRB1099");
    EXPECT_TRUE(rrb.cutToDocument());
    EXPECT_EQ(rrb.height, bottomOf(rrb.at("LabelForm", 3)));
    EXPECT_FALSE(open("mnuW2").cutToDocument()) << "a form of the common rule is cut at its border";
}

TEST_F(FormPaper, TheStatementsOfPartsKeepTheirPartHeadingsShaded) {
    for (const char* menuItem : {"mnu1095A", "mnu1095B", "mnu1095C", "mnuK11065"}) {
        SCOPED_TRACE(menuItem);
        CatalogueForm& statement = open(menuItem);
        Control heading;
        heading.name = "LabelPart";
        Control other;
        other.name = "Label1";
        other.opaque = true;
        statement.paintLabelAsPaper(heading);
        statement.paintLabelAsPaper(other);
        EXPECT_TRUE(heading.opaque);
        EXPECT_FALSE(other.opaque);
    }
    Control heading;
    heading.name = "LabelPart";
    heading.opaque = true;
    open("mnuW2").paintLabelAsPaper(heading);
    EXPECT_FALSE(heading.opaque);
}

TEST_F(FormPaper, TheAbandonmentFormKeepsBoxSixShadedAndGetsItsGreyBackAfterAClip) {
    CatalogueForm& form1099A = open("mnu1099A");
    Control& boxSix = form1099A.at("Label1", 6);
    Control& boxOne = form1099A.at("Label1", 0);
    clipScreen(&form1099A, false);
    EXPECT_TRUE(boxSix.opaque);
    EXPECT_EQ(boxSix.backColor, kWhite);
    EXPECT_FALSE(boxOne.opaque);
    EXPECT_EQ(boxOne.backColor, kWhite);
    EXPECT_TRUE(form1099A.putBackAfterClip());
    EXPECT_EQ(boxOne.backColor, kButtonFace);
    EXPECT_EQ(boxSix.backColor, kWhite) << "box 6 stays as the clip left it";
}

TEST_F(FormPaper, AK1StandsAsAPageForEachHalfAndComesBack) {
    CatalogueForm& k1 = open("mnuK11065");
    Control& tabs = k1.at("SSTab1");
    const int height = k1.height;
    const int tabHeight = tabs.tabHeight;
    {
        const HalfAsPaper paper(k1);
        EXPECT_EQ(k1.height, k1.at("Pic1L").height);
        EXPECT_EQ(k1.at("Pic1L").top, 0);
        EXPECT_EQ(tabs.tabHeight, 0);
    }
    EXPECT_EQ(k1.height, height);
    EXPECT_EQ(tabs.tabHeight, tabHeight);
    EXPECT_NE(k1.at("Pic1L").top, 0);

    CatalogueForm& w2 = open("mnuW2");
    const int w2Height = w2.height;
    const HalfAsPaper paper(w2);
    EXPECT_EQ(w2.height, w2Height) << "any other form is left as it is";
}

}  // namespace
}  // namespace lw
