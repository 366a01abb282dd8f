#pragma once
// The tax forms of the menu drawn from definition files, and a fixture that opens each of them from its
// menu item. Tests that link the forms include it.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "catalogue/catalogue_table.h"
#include "catalogue/definitions.h"
#include "forms/register_forms.h"
#include "test_program.h"

namespace lw::testing {

// The TF_ forms of the menu that have a drawing of their own, in the order of the catalogue.
inline std::vector<std::string> drawnForms() {
    std::vector<std::string> names;
    for (const CatalogueEntry& entry : catalogue())
        if (hasDefinition(entry.form) && std::string(entry.menuItem).rfind("mnu", 0) == 0 &&
            std::string(entry.form).rfind("TF_", 0) == 0)
            names.push_back(entry.form);
    return names;
}

// The parameter is the form's name; SetUp opens it from its menu item in a fresh program.
class EachDrawnForm : public ::testing::TestWithParam<std::string> {
protected:
    void SetUp() override { open(test.ui); }

    // A fixture whose program answers the window's requests its own way passes its own ports.
    void open(UiPort& ui) {
        test.program.reset();
        test.program = std::make_unique<Program>(ui, test.platform);
        registerAllForms();
        test.start();
        for (const CatalogueEntry& entry : catalogue())
            if (entry.form == GetParam()) test.program->desktop.chooseMenu(entry.menuItem);
        form = test.program->desktop.activeChild();
        ASSERT_NE(form, nullptr);
        ASSERT_EQ(form->name(), GetParam());
    }

    TestProgram test;
    Form* form = nullptr;
};

}  // namespace lw::testing
