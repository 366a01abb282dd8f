#pragma once
// A fresh program for each GUI test: the window's own screen port, a machine that stands still, and a
// small form with two text boxes, a label and a check label.

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QWidget>
#include <memory>
#include <string>
#include <type_traits>

#include "model/program.h"
#include "ui/form_view.h"
#include "ui/qt_ui_port.h"

namespace lw::ui::test {

class StillMachine : public PlatformPort {
public:
    DateTime now() override { return DateTime{2025, 2, 1, 10, 0, 0}; }
    std::optional<std::string> environment(const std::string&) override { return std::nullopt; }
    std::string executableName() override { return "Ledgerwick_Test"; }
    std::string executableFolder() override { return "."; }
    std::string commandLine() override { return ""; }
    std::string rootFolder() override { return "."; }
    bool earlierInstanceRunning() override { return false; }
    void activateEarlierInstance(const std::string&) override {}
    void sleep(int) override {}
    std::vector<std::string> printers() override { return {}; }
    int screenWidthTwips() override { return 1920 * 15; }
};

// Two fields of a tax form: the first may refuse to be left, the second shouts what it is given.
class TwoFields : public Form {
public:
    TwoFields();

    bool keepFirst = false;  // Validate of Text1(0) cancels
    bool upperCase = false;  // KeyPress of Text1(1) makes letters capitals
    int clicks = 0;
    std::string lastClicked;

    void onGotFocus(Control& control) override;
    void onLostFocus(Control& control) override;
    void onValidate(Control& control, bool& cancel) override;
    void onKeyPress(Control& control, int& keyAscii) override;
    void onClick(Control& control, MouseButton button) override;
};

constexpr Color kFocusColor = 0x00C0FFFF;

class GuiTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    Desktop& desktop() { return program_->desktop; }
    // Loads a form into the program's desktop and returns it.
    template <typename F>
    F& load() {
        if constexpr (std::is_constructible_v<F, const ProgramParts&>)
            return static_cast<F&>(desktop().load(std::make_unique<F>(program_->parts)));
        else
            return static_cast<F&>(desktop().load(std::make_unique<F>()));
    }
    // A key as the operator presses it: to the widget that has Qt's focus in the window.
    void press(QWidget* window, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
               const QString& text = QString());
    void type(QWidget* window, const QString& text);
    static void show(QWidget& widget);

    QtUiPort ui_;
    StillMachine machine_;
    std::unique_ptr<Program> program_;
};

// A screen reader listening while it lives, as Qt tells the program when one starts and stops.
class ScreenReaderListening {
public:
    ScreenReaderListening();
    ~ScreenReaderListening();
};

// A form of type F loaded into the desktop and shown in its own view.
template <typename F>
class FormViewTest : public GuiTest {
protected:
    void SetUp() override {
        GuiTest::SetUp();
        form_ = &load<F>();
        view_ = std::make_unique<FormView>(*form_);
        show(*view_);
    }
    void TearDown() override {
        view_.reset();
        GuiTest::TearDown();
    }
    // The editor of the view for the control of that object name, such as "Text1_4".
    QLineEdit* editor(const char* name) const {
        return view_->findChild<QLineEdit*>(QString::fromLatin1(name));
    }

    F* form_ = nullptr;
    std::unique_ptr<FormView> view_;
};

// A form of two fields shown in its own view, the first field in focus.
class TwoFieldsViewTest : public FormViewTest<TwoFields> {
protected:
    void SetUp() override;

    Control* first_ = nullptr;
    Control* second_ = nullptr;
};

}  // namespace lw::ui::test
