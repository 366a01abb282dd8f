// Every drawn form survives a save and an open with every typed field and every mark unchanged.
#include <gtest/gtest.h>

#include <fstream>
#include <map>

#include "catalogue/catalogue_table.h"
#include "catalogue/definitions.h"
#include "documents/record.h"
#include "forms/register_forms.h"
#include "forms/tax_form.h"
#include "shell/form_lifecycle.h"
#include "test_program.h"

namespace lw {
namespace {

// A started program with every form registered; the parameter is the name of the form saved and opened.
struct StartedProgram : ::testing::TestWithParam<std::string> {
    testing::TestProgram test;
    void SetUp() override {
        registerAllForms();
        test.start();
    }

    // Saves the open form to a file of that name, unloads it and opens the file: the form read back.
    Form* saveAndReadBack(Form& form, const std::string& fileName) {
        const std::string path = (test.root / fileName).string();
        std::ofstream(path, std::ios::binary)
            << buildRecord(&form, test.program->g.document).value_or("") << "\r\n";
        form.unload();
        test.program->g.document.currentFileName = path;
        const Form* read = readDataFile(path, test.program->parts);
        EXPECT_NE(read, nullptr);
        if (read) {
            EXPECT_EQ(read->name(), GetParam());
        }
        EXPECT_EQ(test.program->g.document.catalogue.formTitle, GetParam());
        EXPECT_EQ(read, test.program->desktop.activeChild());
        return test.program->desktop.activeChild();
    }
};

struct RoundTrip : StartedProgram {};

// The control a key such as "Text1(12)" names.
const Control& controlAt(const Form& form, const std::string& key) {
    const std::size_t open = key.find('(');
    return form.at(key.substr(0, open), std::stoi(key.substr(open + 1)));
}

// A value no edit of any type rewrites when the file is read back: no date, no "=", no "·".
std::string valueFor(const Control& c) {
    std::string value = "V " + c.key();
    if (c.multiLine) value += "\r\nSECOND LINE";
    return value;
}

// A mark saved as CHK647 is read as box 64 by the two digits of its key; the 1095-C has no box 64, so its
// box 647 comes back empty.
std::string markReadBack(const std::string& formName, const Control& c) {
    return formName == "TF_1095C" && c.index == 647 ? "" : "X";
}

TEST_P(RoundTrip, EveryFieldAndMarkComesBack) {
    const std::string formName = GetParam();
    Form* form = openCatalogueForm(formName);
    ASSERT_NE(form, nullptr) << formName;
    std::map<std::string, std::string> written;
    for (const auto& owned : form->controls()) {
        Control& c = *owned;
        if (isFieldArray(c)) {
            c.text = valueFor(c);
            written[c.key()] = c.text;
        } else if (c.name == "Check" && c.index != kNoIndex) {
            c.caption = "X";
            written[c.key()] = markReadBack(formName, c);
        }
    }
    Form* read = saveAndReadBack(*form, "round.trip");
    ASSERT_NE(read, nullptr);
    ASSERT_EQ(read->name(), formName);
    for (const auto& [key, value] : written) {
        const Control& c = controlAt(*read, key);
        EXPECT_EQ(c.isTextBox() ? c.text : c.caption, value) << formName << " " << key;
    }
    EXPECT_TRUE(test.ui.reports.empty()) << formName;
}

// A K-1 as a trainer fills it: a code in every coded row, an amount in every row, the check mark amount
// and every mark set; all of it comes back, and the rows stay coded as the form made them.
TEST_P(RoundTrip, AK1KeepsItsCodesAmountsAndMarks) {
    const std::string formName = GetParam();
    if (formName.rfind("TF_K1", 0) != 0) GTEST_SKIP() << "only the K-1 forms have code rows";
    Form* form = openCatalogueForm(formName);
    ASSERT_NE(form, nullptr);
    std::map<std::string, std::string> written;
    std::map<std::string, std::string> tags;
    int n = 0;
    for (const auto& owned : form->controls()) {
        Control& c = *owned;
        if (isFieldArray(c) && c.name != "Text1") {
            const bool code = c.name == "Text2" || c.name == "Text4";
            if (code && c.tag.rfind("K1HELP", 0) == 0)
                c.text = std::string(1, static_cast<char>('A' + n++ % 26));
            else if (!code)
                c.text = c.tag == "CheckBox" ? "X" : std::to_string(100 + n++) + ".00";
            written[c.key()] = c.text;
            tags[c.key()] = c.tag;
        } else if (c.name == "Check" && c.index != kNoIndex && c.index % 2 == 0) {
            c.caption = "X";
            written[c.key()] = "X";
        }
    }
    Form* read = saveAndReadBack(*form, "k1.trip");
    ASSERT_NE(read, nullptr);
    for (const auto& [key, value] : written) {
        const Control& c = controlAt(*read, key);
        EXPECT_EQ(c.isTextBox() ? c.text : c.caption, value) << formName << " " << key;
        if (c.isTextBox()) EXPECT_EQ(c.tag, tags[key]) << formName << " " << key;
    }
    for (const auto& owned : read->controls())
        if (owned->name == "Check" && owned->index % 2 == 1) EXPECT_EQ(owned->caption, "") << owned->key();
    EXPECT_TRUE(test.ui.reports.empty()) << formName;
}

std::vector<std::string> drawnForms() {
    std::vector<std::string> forms;
    for (const CatalogueEntry& entry : catalogue())
        if (hasDefinition(entry.form)) forms.push_back(entry.form);
    return forms;
}

INSTANTIATE_TEST_SUITE_P(DrawnForms, RoundTrip, ::testing::ValuesIn(drawnForms()),
                         [](const ::testing::TestParamInfo<std::string>& info) { return info.param; });

}  // namespace
}  // namespace lw

namespace lw {
namespace {

// The mortgage, tuition and health coverage forms with values as their edits leave them, a total that
// does not match its months included: the file gives back exactly what was saved, and opening it works
// nothing out again.
struct TypedRoundTrip : StartedProgram {};

std::string typedValueFor(const Control& c) {
    const std::string tag = c.tag;
    if (tag == "MONEY") return "$1,234,567.89";
    if (tag == "SMONEY") return "1,234.50";
    if (tag == "TIN") return "123-45-6789";
    if (tag == "EIN") return "91-4234567";
    if (tag == "DATE") return "03/07/2025";
    if (tag == "TPNAME" || tag == "ISSUER")
        return c.multiLine ? "JANE Q DOE\r\n12 MAIN ST\r\nANYTOWN, OH 44000" : "JANE Q DOE";
    if (tag == "1095C-14") return "1E";
    if (tag == "1095C-16") return "2C";
    if (tag == "1095C-17") return "44000";
    return c.multiLine ? "LINE ONE\r\nLINE TWO" : "ABC 123";
}

TEST_P(TypedRoundTrip, EveryTypedValueComesBackUnchanged) {
    const std::string formName = GetParam();
    Form* form = openCatalogueForm(formName);
    ASSERT_NE(form, nullptr) << formName;
    std::map<std::string, std::string> written;
    int marks = 0;
    for (const auto& owned : form->controls()) {
        Control& c = *owned;
        if (isFieldArray(c)) {
            c.text = typedValueFor(c);
            written[c.key()] = c.text;
        } else if (c.name == "Check" && c.index != kNoIndex && (marks++ % 2 == 0 || c.index == 647)) {
            c.caption = "X";
            written[c.key()] = markReadBack(formName, c);
        }
    }
    Form* read = saveAndReadBack(*form, "typed.trip");
    ASSERT_NE(read, nullptr);
    ASSERT_EQ(read->name(), formName);
    for (const auto& owned : read->controls()) {
        const Control& c = *owned;
        if (!isFieldArray(c) && !(c.name == "Check" && c.index != kNoIndex)) continue;
        const auto it = written.find(c.key());
        const std::string expected = it == written.end() ? "" : it->second;
        EXPECT_EQ(c.isTextBox() ? c.text : c.caption, expected) << formName << " " << c.key();
    }
    EXPECT_TRUE(test.ui.reports.empty()) << formName;
}

INSTANTIATE_TEST_SUITE_P(MortgageTuitionAndHealthForms, TypedRoundTrip,
                         ::testing::Values("TF_1098", "TF_1098E", "TF_1098T", "TF_1095A", "TF_1095B",
                                           "TF_1095C"),
                         [](const ::testing::TestParamInfo<std::string>& info) { return info.param; });

}  // namespace
}  // namespace lw
