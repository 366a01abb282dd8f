#pragma once
// A started program whose catalogue forms are small forms of the test, under the names of the real
// ones, so that files can be written, opened and read back with the shipped catalogue. The forms whose
// files have rules of their own (the cards, the sheet, the benefit statement) are the program's.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "documents/record.h"
#include "forms/register_forms.h"
#include "model/program.h"
#include "shell/form_lifecycle.h"
#include "shell/form_registry.h"
#include "store/inf_store.h"
#include "test_program.h"

namespace lw::testing {

// "·" and "»" as the single bytes they are on disk.
inline const std::string D = "\xB7";
inline const std::string R = "\xBB";

struct SmallFormShape {
    int texts = 0;        // Text1(0..texts-1)
    int secondTexts = 0;  // Text2(0..secondTexts-1)
    int checks = 0;       // Check(0..checks-1)
    bool year = true;     // the TaxYear labels
};

class SmallForm : public Form {
public:
    SmallForm(const std::string& name, const SmallFormShape& shape) : Form(name) {
        width = 6000;
        height = 4000;
        if (shape.year) {
            add(ControlKind::Label, "TaxYear", 0).caption = "20";
            add(ControlKind::Label, "TaxYear", 1).caption = "??";
        }
        add(ControlKind::Label, "labelMisc");
        for (int i = 0; i < shape.texts; ++i) add(ControlKind::TextBox, "Text1", i).tabIndex = i;
        for (int i = 0; i < shape.secondTexts; ++i) add(ControlKind::TextBox, "Text2", i).tabIndex = 100 + i;
        for (int i = 0; i < shape.checks; ++i) add(ControlKind::CheckLabel, "Check", i);
    }
    void onLoad() override { initCatalogueForm(*this); }
};

// The driver's license keeps the numbers of its two portraits.
class SmallLicenseForm : public SmallForm, public ChosenPictures {
public:
    SmallLicenseForm() : SmallForm("F3_DL", {10, 0, 0, false}) {
        add(ControlKind::Frame, "Frame1");
        for (const char* box : {"Picture1", "Picture2", "Picture3", "Picture4"})
            add(ControlKind::Picture, box);
        at("Text1", 1).tag = "DATE";
        at("Text1", 5).tag = "DATE";
    }
    int& chosenPicture(int which) override {
        return which == 1 ? license1PictureIndex : license2PictureIndex;
    }
    int license1PictureIndex = 0;
    int license2PictureIndex = 0;
};

inline void registerSmallForms() {
    registerAllForms();
    registerForm("TF_W2", [](const ProgramParts&) {
        auto form = std::make_unique<SmallForm>("TF_W2", SmallFormShape{8, 0, 3, true});
        form->add(ControlKind::TextBox, "txtNote");
        return form;
    });
    registerForm("TF_W2G", [](const ProgramParts&) {
        auto form = std::make_unique<SmallForm>("TF_W2G", SmallFormShape{4, 0, 0});
        form->at("Text1", 2).tag = "DATEX";
        form->at("Text1", 3).tag = "DATE";
        return form;
    });
    registerForm("TF_1099MISC", [](const ProgramParts&) {
        return std::make_unique<SmallForm>("TF_1099MISC", SmallFormShape{4, 0, 0});
    });
    registerForm("F4_CHK", [](const ProgramParts&) {
        return std::make_unique<SmallForm>("F4_CHK", SmallFormShape{4, 0, 0, false});
    });
    registerForm("F3_DL", [](const ProgramParts&) { return std::make_unique<SmallLicenseForm>(); });
}

struct Documents : ::testing::Test {
    TestProgram test;
    Globals& g = test.program->g;
    std::filesystem::path files;

    void SetUp() override {
        registerSmallForms();
        test.start();
        g.taxYear = TaxYearChoice(2025);
        files = test.root / "cases";
        std::filesystem::create_directories(files);
        test.ui.boxes.clear();
        test.ui.reports.clear();
    }

    Form& open(const std::string& name) {
        g.document.currentFileName.clear();
        Form* form = openCatalogueForm(name);
        EXPECT_NE(form, nullptr) << name;
        return *form;
    }

    std::string write(const std::string& name, const std::string& bytes) {
        const std::filesystem::path path = files / name;
        std::ofstream(path, std::ios::binary) << bytes;
        return path.string();
    }

    static std::string contents(const std::string& path) {
        std::ifstream in(path, std::ios::binary);
        return std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    }

    // The Open command with the dialog answered by `path`.
    void openFile(const std::string& path) {
        test.ui.fileAnswers.push_back(path);
        openDataFile(test.program->parts);
    }
    // The line of the document's form, as a save builds it.
    std::optional<std::string> record() { return buildRecord(g.document.currentForm, g.document); }
    // Reads the document's file, as the Open command does once a file is chosen.
    Form* readCurrentFile() { return readDataFile(g.document.currentFileName, test.program->parts); }

    Form* active() { return test.program->desktop.activeChild(); }
    Control& field(const std::string& name, int index = kNoIndex) {
        Form* form = active();
        if (!form) throw std::runtime_error("no form is on the screen");
        return form->at(name, index);
    }
    std::string userInf(const std::string& key) {
        return store::readInfValue("TESTER", key, "", g.edition.userInfFile);
    }
};

}  // namespace lw::testing
