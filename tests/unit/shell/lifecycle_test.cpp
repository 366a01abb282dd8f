#include <gtest/gtest.h>

#include <fstream>

#include "shell/catalogue_form.h"
#include "shell/form_lifecycle.h"
#include "shell/form_registry.h"
#include "store/inf_store.h"
#include "test_program.h"

namespace lw {
namespace {

// A tax form of the test with two dated fields and its year labels.
class SampleForm : public CatalogueForm {
public:
    explicit SampleForm(const ProgramParts& parts) : CatalogueForm("TF_SAMPLE", parts) {
        width = 6000;
        height = 3000;
        add(ControlKind::Label, "TaxYear", 0).caption = "20";
        add(ControlKind::Label, "TaxYear", 1).caption = "??";
        add(ControlKind::Label, "labelMisc");
        for (int i = 0; i < 3; ++i) {
            Control& c = add(ControlKind::TextBox, "Text1", i);
            c.top = 300 * i;
            c.height = 285;
        }
        at("Text1", 1).tag = "DATEX";
        at("Text1", 2).tag = "DATEX";
        add(ControlKind::CheckLabel, "Check", 0).caption = "X";
        Control& border = add(ControlKind::Shape, "myBorder");
        border.left = 0;
        border.top = 0;
        Control& box = add(ControlKind::Shape, "Shape1", 0);
        box.left = 100;
        box.top = 2000;
        box.width = 5000;
        box.height = 800;
        Control& line = add(ControlKind::Line, "Line1", 0);
        line.top = 100;
        line.y2 = 3100;
    }
    void onLoad() override { initCatalogueForm(*this); }
};

struct Lifecycle : ::testing::Test {
    testing::TestProgram test;
    void SetUp() override {
        registerForm("TF_SAMPLE",
                     [](const ProgramParts& parts) { return std::make_unique<SampleForm>(parts); });
        test.start();
        std::string path = (test.root / "Forms.inf").string();
        std::ofstream(path, std::ios::binary) << "[SAMPLE]\r\nFormName=TF_SAMPLE\r\nFocusOnStartup=2\r\n";
        test.program->g.edition.formsInfFile = path;
        test.program->g.taxYear = TaxYearChoice(2025);
    }
    Form& open() {
        Form* form = openCatalogueForm("TF_SAMPLE");
        EXPECT_NE(form, nullptr);
        return *form;
    }
};

TEST_F(Lifecycle, OpeningPlacesTheFormWithItsYearAndFocus) {
    Form& form = open();
    EXPECT_EQ(test.program->desktop.activeChild(), &form);
    EXPECT_EQ(test.program->g.document.currentForm, &form);
    EXPECT_EQ(test.program->g.document.formKey, "SAMPLE");
    EXPECT_EQ(form.at("TaxYear", 1).caption, "25");
    EXPECT_EQ(test.program->desktop.focus(), &form.at("Text1", 2));
    EXPECT_EQ(form.at("Text1", 0).fontName, "Tahoma");
    EXPECT_DOUBLE_EQ(form.at("Text1", 0).fontSize, 10);
}

TEST_F(Lifecycle, OneFormAtATime) {
    registerForm("TF_OTHER", [](const ProgramParts& parts) {
        auto other = std::make_unique<SampleForm>(parts);
        return other;
    });
    Form& first = open();
    (void)first;
    Form* second = openCatalogueForm("TF_SAMPLE");
    ASSERT_NE(second, nullptr);
    int children = 0;
    for (Form* form : test.program->desktop.forms()) children += form->isChild;
    EXPECT_EQ(children, 1);
}

TEST_F(Lifecycle, TheBorderTakesInEveryControl) {
    Form& form = open();
    Control& border = form.at("myBorder");
    sizeBorderToControls(border);
    EXPECT_EQ(border.left, 60);
    EXPECT_EQ(border.top, 60);
    EXPECT_EQ(border.height, 3100) << "the line's lower end is the lowest point";
    EXPECT_EQ(border.width, 5100 - 60);
}

TEST_F(Lifecycle, ChecksToggleAndPairsClearTheirPartner) {
    Control a, b;
    toggleCheck(a);
    EXPECT_EQ(a.caption, "X");
    toggleCheck(a);
    EXPECT_EQ(a.caption, "");
    b.caption = "X";
    toggleCheckPair(a, b);
    EXPECT_EQ(a.caption, "X");
    EXPECT_EQ(b.caption, "");
    b.caption = "X";
    toggleCheckPair(a, b);
    EXPECT_EQ(a.caption, "");
    EXPECT_EQ(b.caption, "X") << "unmarking leaves the partner as it was";
}

TEST_F(Lifecycle, ClearEmptiesFieldsChecksStatusAndTheFileName) {
    Form& form = open();
    form.at("Text1", 0).text = "kept?";
    form.at("labelMisc").caption = "a message";
    test.program->g.document.currentFileName = "/tmp/x.venturo";
    clearForm();
    EXPECT_EQ(form.at("Text1", 0).text, "");
    EXPECT_EQ(form.at("Check", 0).caption, "");
    EXPECT_EQ(form.at("labelMisc").caption, "");
    EXPECT_EQ(test.program->g.document.currentFileName, "");
}

TEST_F(Lifecycle, ChangingTheYearCyclesRemembersAndRedatesTheForm) {
    Form& form = open();
    changeTaxYear(form);
    EXPECT_EQ(test.program->g.taxYear, TaxYearChoice(2025, TaxYearChoice::Slot::NextYear));
    EXPECT_EQ(form.at("TaxYear", 1).caption, "26");
    EXPECT_EQ(store::readInfValue("TESTER", "LastTaxYear", "", test.program->g.edition.userInfFile), "2026");
    changeTaxYear(form);
    EXPECT_EQ(form.at("TaxYear", 1).caption, "XX");
    changeTaxYear(form);
    EXPECT_EQ(form.at("TaxYear", 1).caption, "24");
}

TEST_F(Lifecycle, AfterAChangeOfYearTheFirstDateOutOfTheYearIsMovedAndTheWalkGoesOn) {
    Form& form = open();
    form.at("Text1", 1).text = "03/07/2025";
    form.at("Text1", 2).text = "04/01/2025";
    test.ui.answers = {"OK", "OK"};
    changeTaxYear(form);
    // A date in a year-bound field is moved to the new year with a message; it does not fail.
    EXPECT_EQ(form.at("Text1", 1).text, "03/07/2026");
    EXPECT_EQ(form.at("Text1", 2).text, "04/01/2026");
    ASSERT_EQ(test.ui.boxes.size(), 2u);
    EXPECT_NE(test.ui.boxes[0].find("Date MUST match the Tax Year shown on the form"), std::string::npos);
}

TEST_F(Lifecycle, AfterAChangeOfYearABadDateStopsTheWalk) {
    Form& form = open();
    form.at("Text1", 1).text = "02/30/2025";
    form.at("Text1", 2).text = "04/01/2025";
    changeTaxYear(form);
    EXPECT_EQ(form.at("Text1", 1).text, "02/30/2025");
    EXPECT_EQ(form.at("Text1", 1).backColor, test.program->g.edition.legendColors[6]);
    EXPECT_EQ(form.at("labelMisc").caption, "Value Entered: [02/30/2025] is INVALID");
    EXPECT_EQ(form.at("Text1", 2).text, "04/01/2025") << "the walk stopped at the first bad date";
    EXPECT_TRUE(test.ui.boxes.empty());
}

TEST_F(Lifecycle, AFormThatIsGoneIsNoLongerCurrent) {
    Form& form = open();
    form.unload();
    EXPECT_EQ(test.program->g.document.currentForm, nullptr);
}

}  // namespace
}  // namespace lw
