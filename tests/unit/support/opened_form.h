#pragma once
// A form opened from its menu item in a started program with every form registered, and the clicks and
// keys the operator uses on it. Tests that link the forms include it.

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "forms/register_forms.h"
#include "model/keys.h"
#include "test_program.h"

namespace lw::testing {

// Registers every form and starts the frame.
inline void startWithEveryForm(TestProgram& test) {
    registerAllForms();
    test.start();
}

// Registers every form, starts the frame and chooses the menu item: the child it brings up, or null.
inline Form* openFromMenu(TestProgram& test, const std::string& menuItem) {
    startWithEveryForm(test);
    test.program->desktop.chooseMenu(menuItem);
    return test.program->desktop.activeChild();
}

// A started program with every form registered and a form of it under test, which the fixture opens.
template <class FormType = Form>
class FormUnderTest : public ::testing::Test {
protected:
    void SetUp() override { startWithEveryForm(test); }

    Desktop& desktop() { return test.program->desktop; }
    Control& field(int i) { return form->at("Text1", i); }
    Control* focus() { return desktop().focus(); }
    // A click into the field, then the text typed over its selected contents.
    void typeInto(Control& c, const std::string& text) {
        desktop().setFocus(c);
        ASSERT_EQ(focus(), &c);
        for (char ch : text) desktop().typeCharacter(ch);
    }
    void typeInto(int i, const std::string& text) { typeInto(field(i), text); }
    void tab(bool backwards = false) {
        desktop().pressKey(keys::kTab, backwards ? keys::kShiftMask : 0, keys::kTab);
    }
    void f12() { desktop().pressKey(keys::kF12, 0, 0); }

    TestProgram test;
    FormType* form = nullptr;
};

// The fixture of one form: SetUp opens it and asserts it is the form of that name and type.
template <class FormType = Form>
class OpenedForm : public FormUnderTest<FormType> {
protected:
    OpenedForm(std::string menuItem, std::string formName)
        : menuItem_(std::move(menuItem)), formName_(std::move(formName)) {}

    void SetUp() override { open(); }

    // Separate from SetUp so that a fixture can set the clock or the user first.
    void open() {
        Form* child = openFromMenu(this->test, menuItem_);
        ASSERT_NE(child, nullptr) << menuItem_;
        ASSERT_EQ(child->name(), formName_);
        this->form = dynamic_cast<FormType*>(child);
        ASSERT_NE(this->form, nullptr) << formName_;
    }

private:
    std::string menuItem_;
    std::string formName_;
};

}  // namespace lw::testing
