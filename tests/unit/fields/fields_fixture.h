#pragma once
// A fresh program for each field test: the frame with its colour legend, and a tax form whose text
// boxes carry the standard handlers of a form (or those of the check form, which filters every key).

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>

#include "diagnostics/error_report_form.h"
#include "diagnostics/message_box.h"
#include "fake_ports.h"
#include "fields/control_setup.h"
#include "fields/edit_ctl.h"
#include "fields/key_press.h"
#include "model/keys.h"
#include "model/program.h"

namespace lw::test {

constexpr std::array<Color, 10> kLegend = {0x00C0C0C0, 0x00FFC0C0, 0x00FFC0FF, 0x0000FF00, 0x00C0FFC0,
                                           0x00C0E0FF, 0x00C0C0FF, 0x00E0E0E0, 0x00FFFF00, 0x0080FFFF};

class FieldForm : public Form {
public:
    // everyKeyFiltered: the check form's KeyPress, which lets no Ctrl+C or Ctrl+V pass unfiltered.
    FieldForm(const std::string& name, bool everyKeyFiltered, const ProgramParts& parts)
        : Form(name), everyKeyFiltered_(everyKeyFiltered), parts_(parts) {}

    void onGotFocus(Control& ctl) override {
        setUpControl(ctl, false, parts_.document, parts_.edition.legendColors);
    }
    void onKeyPress(Control& ctl, int& keyAscii) override {
        if (!everyKeyFiltered_ && (keyAscii == keys::kCtrlC || keyAscii == keys::kCtrlV)) return;
        filterFieldKey(ctl, keyAscii);
    }
    void onValidate(Control& ctl, bool& cancel) override {
        if (!everyKeyFiltered_) cancel = !editField(ctl, editContextOf(parts_));
    }
    void onLostFocus(Control& ctl) override {
        ctl.backColor = kWhite;
        if (!everyKeyFiltered_) ctl.foreColor = kBlack;
    }

private:
    bool everyKeyFiltered_;
    const ProgramParts& parts_;
};

class FieldsTest : public ::testing::Test {
protected:
    void SetUp() override {
        resetMessageBoxes();
        resetErrorReports();
        program_ = std::make_unique<Program>(ui, platform);
        auto frame = std::make_unique<Form>("F0_MDI");
        frame->isChild = false;
        for (int i = 0; i < 10; ++i) frame->add(ControlKind::TextBox, "txtLegend", i).backColor = kLegend[i];
        prog().desktop.setFrame(prog().desktop.load(std::move(frame)));
        prog().g.edition.legendColors = kLegend;
        form = &openForm("TF_TEST", false);
    }
    void TearDown() override { program_.reset(); }

    Program& prog() { return *program_; }
    Globals& g() { return program_->g; }
    // What an edit works with: the document, the desktop, the tax year in force and the fake clock.
    EditContext editContext() { return {g().document, prog().desktop, g().taxYear, platform.now()}; }

    // A child form with the status line and the tax year labels 20 and 23, made the current form.
    FieldForm& openForm(const std::string& name, bool everyKeyFiltered) {
        auto owned = std::make_unique<FieldForm>(name, everyKeyFiltered, prog().parts);
        FieldForm& f = *owned;
        f.add(ControlKind::Label, "labelMisc");
        f.add(ControlKind::Label, "TaxYear", 0).caption = "20";
        f.add(ControlKind::Label, "TaxYear", 1).caption = "23";
        f.add(ControlKind::TextBox, "Text2", 0);  // a plain field to move the focus to
        prog().desktop.load(std::move(owned));
        g().document.currentForm = &f;
        return f;
    }

    // The next Text1 of the form, with its Tag and Text.
    Control& field(const std::string& tag, const std::string& text = "") {
        Control& c = form->add(ControlKind::TextBox, "Text1", nextIndex_++);
        c.tag = tag;
        c.text = text;
        return c;
    }
    Control& status() { return form->at("labelMisc"); }
    Control& elsewhere() { return form->at("Text2", 0); }

    // Types key by key into the field as the operator does.
    void type(Control& c, const std::string& keys) {
        prog().desktop.setFocus(c);
        for (char k : keys) prog().desktop.typeCharacter(k);
    }
    // Runs the edit as Validate does, on the field that has the focus.
    bool editFocused(Control& c) {
        prog().desktop.setFocus(c);
        return editField(c, editContext());
    }
    // Tries to leave the field for another; true when the focus left.
    bool leave(Control& c) {
        prog().desktop.setFocus(c);
        prog().desktop.setFocus(elsewhere());
        return prog().desktop.focus() != &c;
    }
    std::string invalid(const std::string& entered) { return "Value Entered: [" + entered + "] is INVALID"; }

    FakeUi ui;
    FakePlatform platform;
    FieldForm* form = nullptr;

private:
    std::unique_ptr<Program> program_;
    int nextIndex_ = 0;
};

}  // namespace lw::test
