#pragma once
// The fixture of the naming and saving tests: a program with the forms registered, a small form of the
// catalogue, and the folder the Save dialog answers with.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "documents/save_form.h"
#include "documents/saving.h"
#include "forms/register_forms.h"
#include "forms/tax_form.h"
#include "model/program.h"
#include "shell/form_lifecycle.h"
#include "shell/form_registry.h"
#include "store/inf_store.h"
#include "test_program.h"

namespace lw::saving_fixture {

namespace fs = std::filesystem;

const char* const kTemplates[] = {
    "<LAST>_<FIRST>_<FORM>_<OTHER>_<SEQ>", "<FIRST>_<LAST>_<FORM>_<OTHER>_<SEQ>",
    "<FORM>_<LAST>_<FIRST>_<OTHER>_<SEQ>", "<FORM>_<FIRST>_<LAST>_<OTHER>_<SEQ>"};

// A form of the catalogue with what naming and saving read: numbered fields, the status label, the year
// labels of a form that has a year, and the tab control of a two-page form. A form that is drawn already
// keeps its drawing and only gains what it lacks.
class SmallForm : public TaxForm {
public:
    SmallForm(const std::string& name, int fields, bool hasYear, const ProgramParts& parts)
        : TaxForm(name, parts) {
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
inline void registerSmallForms() {
    const struct {
        const char* name;
        int fields;
        bool hasYear;
    } forms[] = {{"TF_W2", 30, true}, {"TF_1099R", 20, true}};
    for (const auto& f : forms) {
        const std::string name = f.name;
        const int fields = f.fields;
        const bool hasYear = f.hasYear;
        registerForm(name, [=](const ProgramParts& parts) {
            return std::make_unique<SmallForm>(name, fields, hasYear, parts);
        });
    }
}

inline std::string readFile(const fs::path& path) {
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
    std::optional<std::string> name(int& focus) { return proposeFileName(test.program->parts, focus); }
    std::optional<std::string> name() {
        int focus = -1;
        return proposeFileName(test.program->parts, focus);
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

}  // namespace lw::saving_fixture
