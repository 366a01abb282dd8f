#include "documents/saving.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "documents/save_form.h"
#include "forms/register_forms.h"
#include "forms/tax_form.h"
#include "model/program.h"
#include "shell/form_lifecycle.h"
#include "shell/form_registry.h"
#include "store/inf_store.h"
#include "test_program.h"

namespace lw {
namespace {

namespace fs = std::filesystem;

const char* const kTemplates[] = {
    "<LAST>_<FIRST>_<FORM>_<OTHER>_<SEQ>", "<FIRST>_<LAST>_<FORM>_<OTHER>_<SEQ>",
    "<FORM>_<LAST>_<FIRST>_<OTHER>_<SEQ>", "<FORM>_<FIRST>_<LAST>_<OTHER>_<SEQ>"};

// A form of the catalogue with what naming and saving read: numbered fields, the status label, the year
// labels of a form that has a year, and the tab control of a two-page form. A form that is drawn already
// keeps its drawing and only gains what it lacks.
class SmallForm : public TaxForm {
public:
    SmallForm(const std::string& name, int fields, bool hasYear) : TaxForm(name) {
        if (width == 0) width = 6000;
        if (height == 0) height = 300 * fields + 600;
        addMissing(ControlKind::Label, "labelMisc");
        if (hasYear) {
            if (!find("TaxYear", 0)) add(ControlKind::Label, "TaxYear", 0).caption = "20";
            if (!find("TaxYear", 1)) add(ControlKind::Label, "TaxYear", 1).caption = "??";
        }
        if (name == "F5_TPInfo") addMissing(ControlKind::Label, "lblInstr");
        if (name.rfind("TF_K1", 0) == 0) addMissing(ControlKind::TabControl, "SSTab1");
        for (int i = 0; i < fields; ++i) {
            if (find("Text1", i)) continue;
            Control& c = add(ControlKind::TextBox, "Text1", i);
            c.top = 300 * i;
            c.width = 3000;
            c.height = 285;
            c.tabIndex = i;
        }
    }

private:
    void addMissing(ControlKind kind, const char* name) {
        if (!find(name)) add(kind, name);
    }
};

// The forms with the common rules that these tests fill, registered for every test: other tests of the
// program may have put forms of their own under the same names. The forms with naming rules of their own
// are the program's.
void registerSmallForms() {
    const struct {
        const char* name;
        int fields;
        bool hasYear;
    } forms[] = {{"TF_W2", 30, true}, {"TF_1099R", 20, true}};
    for (const auto& f : forms) {
        const std::string name = f.name;
        const int fields = f.fields;
        const bool hasYear = f.hasYear;
        registerForm(name, [=] { return std::make_unique<SmallForm>(name, fields, hasYear); });
    }
}

std::string readFile(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::stringstream s;
    s << in.rdbuf();
    return s.str();
}

struct Saving : ::testing::Test {
    testing::TestProgram test;
    Globals& g = test.program->g;

    void SetUp() override {
        registerAllForms();
        registerSmallForms();
        test.start();
        useTemplate(0);
        fs::create_directories(forms());
    }

    fs::path forms() const { return test.root / "VenturoForms"; }
    void useTemplate(int i) {
        g.choices.fileNameFormat = std::string(kTemplates[i]) + g.edition.fileExtension;
    }
    Form& open(const std::string& name) {
        Form* form = openCatalogueForm(name);
        EXPECT_NE(form, nullptr) << name;
        return *form;
    }
    void set(Form& form, int index, const std::string& text) { form.at("Text1", index).text = text; }
    // A W-2 of an employee with a number and an employer.
    Form& w2(const std::string& name = "JOHN DOE") {
        Form& form = open("TF_W2");
        set(form, 13, name);
        set(form, 0, "123-45-6789");
        set(form, 4, "ABC PLUMBING");
        return form;
    }
    std::optional<std::string> name(int& focus) { return proposeFileName(focus); }
    std::optional<std::string> name() {
        int focus = -1;
        return proposeFileName(focus);
    }
    std::string lastBox() const { return test.ui.boxes.empty() ? std::string() : test.ui.boxes.back(); }
    int filesIn(const fs::path& folder) const {
        int n = 0;
        for (const auto& entry : fs::directory_iterator(folder)) {
            (void)entry;
            ++n;
        }
        return n;
    }
};

TEST_F(Saving, TheFourTemplatesOfAW2) {
    const char* const expected[] = {
        "DOE,JOHN_W2_ABC PLUMBING_000.venturo", "JOHN DOE_W2_ABC PLUMBING_000.venturo",
        "W2_DOE,JOHN_ABC PLUMBING_000.venturo", "W2_JOHN DOE_ABC PLUMBING_000.venturo"};
    w2();
    for (int i = 0; i < 4; ++i) {
        useTemplate(i);
        int focus = -1;
        EXPECT_EQ(name(focus), expected[i]) << "template " << i;
        EXPECT_EQ(focus, 0);
    }
    EXPECT_TRUE(test.ui.boxes.empty());
}

TEST_F(Saving, FirstNameFirstKeepsTheWholeCleanedLine) {
    useTemplate(1);
    w2("JOHN Q DOE JR.");
    EXPECT_EQ(name(), "JOHN Q DOE JR_W2_ABC PLUMBING_000.venturo");
    useTemplate(0);
    EXPECT_EQ(name(), "DOE JR,JOHN_W2_ABC PLUMBING_000.venturo");
}

TEST_F(Saving, NamingAlsoFillsTheRecord) {
    w2();
    g.document.formRecord = "stale";
    name();
    EXPECT_EQ(g.document.formRecord.rfind("W-2\xB7", 0), 0u) << g.document.formRecord;
    EXPECT_NE(g.document.formRecord.find("ABC PLUMBING"), std::string::npos);
}

TEST_F(Saving, WithNoTemplateChosenTheFirstIsTaken) {
    g.choices.fileNameFormat.clear();
    w2();
    EXPECT_EQ(name(), "DOE,JOHN_W2_ABC PLUMBING_000.venturo");
}

TEST_F(Saving, TheFieldBeingLeftIsEditedBeforeTheRecordIsMade) {
    Form& form = w2();
    Control& number = form.at("Text1", 0);
    number.tag = "TIN";
    test.program->desktop.setFocus(number);
    ASSERT_EQ(form.activeControl(), &number);
    number.text = "123456789";
    name();
    EXPECT_EQ(number.text, "123-45-6789");
    EXPECT_NE(g.document.formRecord.find("TXT0=123-45-6789"), std::string::npos) << g.document.formRecord;
}

TEST_F(Saving, PlaceholdersAreFoundInAnyCase) {
    g.choices.fileNameFormat = "<last>_<First>_<FORM>_<Other>_<seq>.venturo";
    w2();
    EXPECT_EQ(name(), "DOE,JOHN_W2_ABC PLUMBING_000.venturo");
}

TEST_F(Saving, OnlyTheFirstLinesOfNameAndOtherInformationCount) {
    Form& form = w2("JOHN DOE\r\n12 MAIN ST\r\nANYTOWN, OH 44000");
    set(form, 4, "ABC PLUMBING\r\n1 PIPE RD");
    EXPECT_EQ(name(), "DOE,JOHN_W2_ABC PLUMBING_000.venturo");
}

TEST_F(Saving, OtherInformationEqualToTheNameIsLeftOut) {
    Form& form = w2();
    set(form, 4, "JOHN DOE");
    EXPECT_EQ(name(), "DOE,JOHN_W2_000.venturo");
}

TEST_F(Saving, DoubledSeparatorsCollapse) {
    Form& form = w2();
    set(form, 4, "_ABC__PLUMBING_");
    EXPECT_EQ(name(), "DOE,JOHN_W2_ABC_PLUMBING_000.venturo");
}

TEST_F(Saving, ARetirementFormWithABlankPayerHasNoDoubledSeparator) {
    Form& form = open("TF_1099R");
    set(form, 7, "MARY SAMPLE");
    set(form, 4, "123-45-6789");
    for (int i = 0; i < 4; ++i) {
        useTemplate(i);
        const std::string n = name().value_or("");
        EXPECT_EQ(n.find("__"), std::string::npos) << n;
        EXPECT_NE(n.find("_000.venturo"), std::string::npos) << n;
    }
    useTemplate(0);
    EXPECT_EQ(name(), "SAMPLE,MARY_1099R_000.venturo");
    useTemplate(2);
    EXPECT_EQ(name(), "1099R_SAMPLE,MARY_000.venturo");
    set(form, 0, "FIRST STATE PENSION");
    useTemplate(0);
    EXPECT_EQ(name(), "SAMPLE,MARY_1099R_FIRST STATE PENSION_000.venturo");
}

TEST_F(Saving, ACheckNeverCarriesOtherInformation) {
    Form& form = open("F4_CHK");
    set(form, 0, "JOHN DOE\r\n12 MAIN ST");
    set(form, 3, "FIRST NATIONAL BANK");
    int focus = -1;
    EXPECT_EQ(name(focus), "DOE,JOHN_CHK_000.venturo");
    // A check has no number field to insist on.
    EXPECT_TRUE(test.ui.boxes.empty());
}

TEST_F(Saving, TwoCardsNameTheFileAfterBothPeopleAsTyped) {
    Form& form = open("F2_SS_ITIN");
    set(form, 0, "123-45-6789");
    set(form, 1, "MARY A SAMPLE");
    set(form, 2, "987-65-4321");
    set(form, 3, "JOHN B SAMPLE");
    useTemplate(1);
    EXPECT_EQ(name(), "SS_ITIN_MARY A SAMPLE_JOHN B SAMPLE_000");
    EXPECT_EQ(g.document.formRecord.rfind("SS_ITIN\xB7\xB7", 0), 0u) << g.document.formRecord;
}

TEST_F(Saving, OneCardNamesOnePerson) {
    Form& form = open("F2_SS_ITIN");
    set(form, 0, "123-45-6789");
    set(form, 1, "MARY A SAMPLE");
    EXPECT_EQ(name(), "SS_ITIN_MARY A SAMPLE_000");
}

TEST_F(Saving, CardsThatDoNotPairUpProposeNoName) {
    Form& form = open("F2_SS_ITIN");
    set(form, 0, "123-45-6789");
    EXPECT_EQ(name(), std::nullopt);
    EXPECT_EQ(g.document.formRecord, "Error SS_ITIN");
    ASSERT_EQ(test.ui.boxes.size(), 1u);
    EXPECT_NE(lastBox().find("One or more SS or ITIN cards has a Number without a Name"), std::string::npos);
}

TEST_F(Saving, NameIsMandatory) {
    Form& form = w2("");
    set(form, 0, "");
    int focus = -1;
    EXPECT_EQ(name(focus), std::nullopt);
    EXPECT_EQ(focus, 0);
    ASSERT_EQ(test.ui.boxes.size(), 1u);
    EXPECT_NE(lastBox().find("Name is MANDATORY"), std::string::npos) << lastBox();
    EXPECT_NE(lastBox().find("M4_FileCode:Build_FileName"), std::string::npos);
    EXPECT_NE(lastBox().find("800"), std::string::npos);
}

TEST_F(Saving, TheNumberIsMandatoryAndTakesTheFocus) {
    Form& form = open("TF_1099R");
    set(form, 7, "MARY SAMPLE");
    int focus = -1;
    EXPECT_EQ(name(focus), std::nullopt);
    EXPECT_EQ(focus, 4);
    EXPECT_NE(lastBox().find("Social Security/Taxpayer ID Number is MANDATORY"), std::string::npos)
        << lastBox();
    EXPECT_NE(lastBox().find("801"), std::string::npos);
}

TEST_F(Saving, TheSheetNamesItsSecondTaxpayerLastNameFirst) {
    Form& form = open("F5_TPInfo");
    set(form, 0, "JOHN DOE\r\n12 MAIN ST");
    set(form, 1, "123-45-6789");
    set(form, 3, "MARY Q DOE\r\n12 MAIN ST");
    EXPECT_EQ(name(), "DOE,JOHN_TPINFO_DOE,MARY_000.venturo");
    useTemplate(1);
    EXPECT_EQ(name(), "JOHN DOE_TPINFO_MARY DOE_000.venturo");
}

TEST_F(Saving, TheLicensesNameTheSecondHolderLastNameFirst) {
    Form& form = open("F3_DL");
    set(form, 0, "JOHN DOE");
    set(form, 4, "MARY Q DOE");
    EXPECT_EQ(name(), "DOE,JOHN_DL_DOE,MARY_000.venturo");
}

TEST_F(Saving, TheBenefitStatementTakesItsNameFromTheFirstField) {
    Form& form = open("TF_SSA1099");
    ASSERT_EQ(g.document.formKey, "SSA1099");
    set(form, 0, "JOHN DOE");
    set(form, 1, "123-45-6789");
    EXPECT_EQ(name(), "DOE,JOHN_SSA1099_000.venturo");
}

struct K1Case {
    const char* form;
    bool numberMissing;
    const char* message;
    const char* numberLine;  // the message number on show, empty for 800
    int tab;
};

struct SavingK1 : Saving, ::testing::WithParamInterface<K1Case> {};

TEST_P(SavingK1, BothNumberAndNameAreRequiredNumberFirst) {
    const K1Case& c = GetParam();
    Form& form = open(c.form);
    const int numberIndex = std::stoi(g.document.catalogue.ssnIndex);
    const int nameIndex = std::stoi(g.document.catalogue.nameAddrIndex);
    if (!c.numberMissing) set(form, numberIndex, "123-45-6789");
    Control* tabs = form.find("SSTab1");
    if (tabs) tabs->listIndex = 1 - c.tab;
    int focus = -1;
    EXPECT_EQ(name(focus), std::nullopt);
    ASSERT_EQ(test.ui.boxes.size(), 1u);
    EXPECT_NE(lastBox().find(c.message), std::string::npos) << lastBox();
    if (*c.numberLine) {
        EXPECT_NE(lastBox().find(c.numberLine), std::string::npos) << lastBox();
    } else {
        EXPECT_EQ(lastBox().find("Message Number"), std::string::npos) << lastBox();
    }
    if (tabs) {
        EXPECT_EQ(tabs->listIndex, c.tab);
    }
    const int missing = c.numberMissing ? numberIndex : nameIndex;
    EXPECT_EQ(focus, missing);
    EXPECT_EQ(test.program->desktop.focus(), &form.at("Text1", missing));
}

INSTANTIATE_TEST_SUITE_P(
    Rules, SavingK1,
    ::testing::Values(
        K1Case{"TF_K11041", true, "Beneficiary's SSN/ITIN REQUIRED", "", 1},
        K1Case{"TF_K11041", false, "Beneficiary's Name and Address Required.", "", 1},
        K1Case{"TF_K11065", true, "Shareholder's SSN REQUIRED", "Message Number: 801", 0},
        K1Case{"TF_K11065", false, "Shareholder's Name and Address Required.", "Message Number: 801", 0},
        K1Case{"TF_K11120S", true, "Shareholder's SSN REQUIRED", "Message Number: 801", 0},
        K1Case{"TF_K11120S", false, "Shareholder's Name and Address Required.", "Message Number: 801", 1}));

TEST_F(Saving, AK1WithNumberAndNameIsNamed) {
    Form& form = open("TF_K11065");
    set(form, 5, "123-45-6789");
    set(form, 6, "JOHN DOE\r\n12 MAIN ST");
    set(form, 3, "ABC PARTNERS");
    EXPECT_EQ(name(), "DOE,JOHN_K11065_ABC PARTNERS_000.venturo");
}

TEST_F(Saving, SaveWritesTheRecordAndOneLineEndWhereTheDialogSays) {
    w2().at("Text1", 0).toolTipText = "The employee's number";
    const fs::path path = forms() / "doe.venturo";
    test.ui.fileAnswers.push_back(path.string());
    saveDataFile();
    ASSERT_EQ(test.ui.fileDialogs.size(), 1u);
    EXPECT_TRUE(test.ui.fileDialogs[0].save);
    EXPECT_EQ(test.ui.fileDialogs[0].proposedName, "DOE,JOHN_W2_ABC PLUMBING_000.venturo");
    EXPECT_EQ(readFile(path), g.document.formRecord + "\r\n");
    EXPECT_EQ(g.document.formRecord.rfind("W-2\xB7", 0), 0u);
    Form& form = *g.document.currentForm;
    // The path goes on the status line in red; the field the operator is sent back to then puts its tip
    // there, and the red stays.
    EXPECT_EQ(form.at("labelMisc").caption, form.at("Text1", 0).toolTipText);
    EXPECT_EQ(form.at("labelMisc").foreColor, 255u);
    // The path is not kept: the next Save of the form asks again.
    EXPECT_EQ(g.document.currentFileName, "");
    EXPECT_EQ(test.program->desktop.focus(), &form.at("Text1", 0));
    EXPECT_TRUE(test.ui.boxes.empty());
}

TEST_F(Saving, TheExtensionStandsOnceAtTheEnd) {
    Form& form = w2();
    set(form, 4, "A.VENTURO PLUMBING");
    test.ui.fileAnswers.push_back((forms() / "x.venturo").string());
    saveDataFile();
    ASSERT_EQ(test.ui.fileDialogs.size(), 1u);
    EXPECT_EQ(test.ui.fileDialogs[0].proposedName, "DOE,JOHN_W2_A PLUMBING_000.venturo");
}

TEST_F(Saving, CancelWritesNothing) {
    w2();
    saveDataFile();
    EXPECT_EQ(test.ui.fileDialogs.size(), 1u);
    EXPECT_EQ(filesIn(forms()), 0);
}

TEST_F(Saving, AnOpenedFileIsSavedWithoutADialog) {
    w2();
    const fs::path path = forms() / "opened.venturo";
    g.document.currentFileName = path.string();
    saveDataFile();
    EXPECT_TRUE(test.ui.fileDialogs.empty());
    EXPECT_EQ(readFile(path), g.document.formRecord + "\r\n");
}

TEST_F(Saving, ANamingErrorAsksForNoPath) {
    w2("");
    saveDataFile();
    EXPECT_TRUE(test.ui.fileDialogs.empty());
    EXPECT_EQ(filesIn(forms()), 0);
    EXPECT_NE(lastBox().find("Name is MANDATORY"), std::string::npos);
    // The naming chose the first field to go back to.
    EXPECT_EQ(test.program->desktop.focus(), &g.document.currentForm->at("Text1", 0));
}

TEST_F(Saving, TheNumberErrorSendsTheOperatorToTheNumber) {
    Form& form = open("TF_1099R");
    set(form, 7, "MARY SAMPLE");
    saveDataFile();
    EXPECT_TRUE(test.ui.fileDialogs.empty());
    EXPECT_EQ(test.program->desktop.focus(), &form.at("Text1", 4));
}

TEST_F(Saving, CardsThatDoNotPairUpAreNotSaved) {
    Form& form = open("F2_SS_ITIN");
    set(form, 0, "123-45-6789");
    test.ui.fileAnswers.push_back((forms() / "cards.venturo").string());
    g.document.formRecord = "stale";
    saveDataFile();
    EXPECT_EQ(g.document.formRecord, "Error SS_ITIN");
    EXPECT_TRUE(test.ui.fileDialogs.empty());
    EXPECT_EQ(filesIn(forms()), 0);
}

TEST_F(Saving, AnExistingFileLeftWithoutAnAnswerIsKept) {
    w2();
    const fs::path path = forms() / "kept.venturo";
    std::ofstream(path, std::ios::binary) << "OLD\r\n";
    test.ui.fileAnswers.push_back(path.string());
    saveDataFile();
    EXPECT_EQ(readFile(path), "OLD\r\n");
    EXPECT_EQ(g.document.lastSaveOutcome, SaveOutcome::Done);
    EXPECT_NE(g.document.currentForm->at("labelMisc").foreColor, 255u);
}

TEST_F(Saving, AnExistingFileKeptUnderItsNameIsOverwritten) {
    w2();
    const fs::path path = forms() / "kept.venturo";
    std::ofstream(path, std::ios::binary) << "OLD\r\n";
    test.ui.fileAnswers.push_back(path.string());
    test.ui.saveFormPresses = {"cmdSave"};
    saveDataFile();
    EXPECT_EQ(readFile(path), g.document.formRecord + "\r\n");
    EXPECT_EQ(g.document.formRecord.rfind("W-2\xB7", 0), 0u);
    EXPECT_EQ(g.document.lastSaveOutcome, SaveOutcome::WriteSamePath);
    EXPECT_EQ(g.document.currentForm->at("labelMisc").foreColor, 255u);
}

TEST_F(Saving, AVanishedFolderIsToldAndForgotten) {
    w2();
    const fs::path gone = test.root / "GoneFolder";
    test.ui.fileAnswers.push_back((gone / "doe.venturo").string());
    saveDataFile();
    EXPECT_FALSE(fs::exists(gone));
    ASSERT_FALSE(test.ui.boxes.empty());
    EXPECT_NE(lastBox().find("NOT saved"), std::string::npos) << lastBox();
    EXPECT_NE(lastBox().find(gone.string()), std::string::npos) << lastBox();
    // The dialog remembered the folder; the check forgets it again, as it is gone.
    EXPECT_EQ(store::readInfValue(g.process.userNameUpper, "LastSaveFolder", "?", g.edition.userInfFile), "");
    EXPECT_NE(g.document.currentForm->at("labelMisc").foreColor, 255u);
    EXPECT_TRUE(test.ui.reports.empty());
}

TEST_F(Saving, AFailedWriteIsToldAndLeavesNoPieceBehind) {
    w2();
    // A folder where the file should be: the write cannot replace it.
    const fs::path path = forms() / "taken.venturo";
    fs::create_directories(path);
    test.ui.fileAnswers.push_back(path.string());
    saveDataFile();
    EXPECT_TRUE(fs::is_directory(path));
    EXPECT_NE(lastBox().find("NOT saved"), std::string::npos) << lastBox();
    EXPECT_EQ(filesIn(forms()), 1);
    EXPECT_TRUE(test.ui.reports.empty());
}

TEST_F(Saving, TheSheetHandsItsPeopleToTheStoreAfterTheWrite) {
    const auto store = [&](const char* key) {
        return store::readInfValue(g.process.userNameUpper, key, "?", g.edition.userInfFile);
    };
    Form& form = open("F5_TPInfo");
    set(form, 0, "JOHN DOE");
    set(form, 1, "123-45-6789");
    // A write that fails hands nothing on.
    const fs::path taken = forms() / "taken.venturo";
    fs::create_directories(taken);
    test.ui.fileAnswers.push_back(taken.string());
    saveDataFile();
    EXPECT_EQ(store("TP1SSN"), "?");

    const fs::path path = forms() / "sheet.venturo";
    test.ui.fileAnswers.push_back(path.string());
    saveDataFile();
    EXPECT_EQ(readFile(path), g.document.formRecord + "\r\n");
    EXPECT_EQ(store("TP1NameAddr"), "JOHN DOE");
    EXPECT_EQ(store("TP1SSN"), "123-45-6789");

    // Another form's save leaves the store alone.
    Form& other = w2("MARY MAJOR");
    set(other, 0, "987-65-4321");
    test.ui.fileAnswers.push_back((forms() / "w2.venturo").string());
    saveDataFile();
    EXPECT_EQ(store("TP1NameAddr"), "JOHN DOE");
    EXPECT_EQ(store("TP1SSN"), "123-45-6789");
}

TEST_F(Saving, SavingWithNoFormIsADataErrorAndWritesNothing) {
    g.document.currentForm->unload();
    saveDataFile();
    EXPECT_TRUE(test.ui.fileDialogs.empty());
    EXPECT_NE(lastBox().find("You must open an existing form"), std::string::npos) << lastBox();
}

}  // namespace
}  // namespace lw

namespace lw::testing {
namespace {

TEST(SafeFileName, CharactersThatAFileNameCannotHoldBecomeDashes) {
    EXPECT_EQ(safeFileName("DOE,JOHN_W2_A/B PLUMBING_000.venturo"), "DOE,JOHN_W2_A-B PLUMBING_000.venturo");
    EXPECT_EQ(safeFileName("..\\..\\x:y*z?\"q\"<a>|b"), "..-..-x-y-z--q--a--b");
    EXPECT_EQ(safeFileName(std::string("TAB\tLINE\r\nDEL\x7F")), "TAB-LINE--DEL-");
    EXPECT_EQ(safeFileName("O'BRIEN, MARY-ANN & SONS (2025)"), "O'BRIEN, MARY-ANN & SONS (2025)");
    EXPECT_EQ(safeFileName("CAF\xC9"), "CAF\xC9") << "letters of the code page stay";
}

}  // namespace
}  // namespace lw::testing
