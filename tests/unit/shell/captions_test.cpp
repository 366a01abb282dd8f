#include <gtest/gtest.h>

#include <fstream>

#include "shell/catalogue_form.h"
#include "shell/form_lifecycle.h"
#include "test_program.h"

namespace lw {
namespace {

struct Captions : ::testing::Test {
    testing::TestProgram test;
    CatalogueForm form{"TF_SAMPLE", test.program->parts};

    void SetUp() override {
        std::string path = (test.root / "Forms.inf").string();
        std::ofstream(path, std::ios::binary) << "[SAMPLE]\r\nRTL1=Form 1099-X|For calendar year yyyy\r\n"
                                              << "RTB2=Due yyyy+1, paid yyyy-1 |or YYYY+2\r\n";
        test.program->g.edition.formsInfFile = path;
        test.program->g.taxYear = TaxYearChoice(2023);
        test.program->g.document.currentForm = &form;
        form.add(ControlKind::Label, "Label1", 0).caption = "Tax year 20??|second line";
        form.add(ControlKind::Label, "RTL1").caption = "placeholder";
        form.add(ControlKind::Label, "rtb2").caption = "placeholder";
    }
    std::string caption(const char* name, int index = kNoIndex) { return form.at(name, index).caption; }
};

TEST_F(Captions, OrdinaryLabelsTakeTheYearAndBreakAtBars) {
    writeYearCaptions(test.program->g.taxYear);
    EXPECT_EQ(caption("Label1", 0), "Tax year 2023\r\nsecond line");
}

TEST_F(Captions, ABarThatOpensOrClosesACaptionIsDrawnAsItStands) {
    form.add(ControlKind::Label, "Label5", 0).caption = "|:";
    form.add(ControlKind::Label, "Label5", 1).caption = ":|";
    form.add(ControlKind::Label, "Label5", 2).caption = "|a|b|";
    writeYearCaptions(test.program->g.taxYear);
    EXPECT_EQ(caption("Label5", 0), "|:");
    EXPECT_EQ(caption("Label5", 1), ":|");
    EXPECT_EQ(caption("Label5", 2), "|a\r\nb|");
    // A second pass, as after a change of year, keeps them.
    writeYearCaptions(test.program->g.taxYear);
    EXPECT_EQ(caption("Label5", 0), "|:");
    EXPECT_EQ(caption("Label5", 2), "|a\r\nb|");
}

TEST_F(Captions, LongTextsComeFromTheCatalogueWithTheYearAndABlankAfterEachBreak) {
    writeYearCaptions(test.program->g.taxYear);
    EXPECT_EQ(caption("RTL1"), " Form 1099-X\r\n For calendar year 2023");
    // The shifted years ignore case, the plain one does not; " |" loses its blank.
    EXPECT_EQ(caption("rtb2"), " Due 2024, paid 2022\r\n or 2025");
}

TEST_F(Captions, ThePlaceholderYearShiftsLiterally) {
    writeYearCaptions(TaxYearChoice(2023, TaxYearChoice::Slot::Placeholder));
    EXPECT_EQ(caption("rtb2"), " Due 20XX+1, paid 20XX-1\r\n or 20XX+2");
}

TEST_F(Captions, OnlyTheLongTextsFollowALaterChangeOfYear) {
    writeYearCaptions(test.program->g.taxYear);
    writeYearCaptions(TaxYearChoice(2023, TaxYearChoice::Slot::NextYear));
    EXPECT_EQ(caption("Label1", 0), "Tax year 2023\r\nsecond line");
    EXPECT_EQ(caption("RTL1"), " Form 1099-X\r\n For calendar year 2024");
}

TEST_F(Captions, AnEmptyYearChangesNothing) {
    writeYearCaptions(TaxYearChoice{});
    EXPECT_EQ(caption("RTL1"), "placeholder");
}

}  // namespace
}  // namespace lw
