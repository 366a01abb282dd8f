#include "gui_fixture.h"

#include <QAccessible>
#include <QApplication>
#include <QTest>
#include <QTimer>

#include "ui/input_bridge.h"

namespace lw::ui::test {

TwoFields::TwoFields() : Form("TF_Test") {
    caption = "Test Form";
    width = 4500;
    height = 3000;
    backColor = 0x00F0F0F0;
    for (int i = 0; i < 2; ++i) {
        Control& field = add(ControlKind::TextBox, "Text1", i);
        field.left = 300;
        field.top = 300 + i * 600;
        field.width = 2400;
        field.height = 300;
        field.tabIndex = i;
    }
    Control& label = add(ControlKind::Label, "Label1");
    label.caption = "Wages";
    label.left = 300;
    label.top = 1800;
    label.width = 1500;
    label.height = 255;
    label.opaque = false;
    Control& check = add(ControlKind::CheckLabel, "Check", 0);
    check.left = 3000;
    check.top = 1800;
    check.width = 255;
    check.height = 255;
    check.tabStop = false;
}

void TwoFields::onGotFocus(Control& control) {
    if (control.isTextBox()) control.backColor = kFocusColor;
}

void TwoFields::onLostFocus(Control& control) {
    if (control.isTextBox()) control.backColor = kWhite;
}

void TwoFields::onValidate(Control& control, bool& cancel) {
    if (keepFirst && control.name == "Text1" && control.index == 0) cancel = true;
}

void TwoFields::onKeyPress(Control& control, int& keyAscii) {
    if (upperCase && control.index == 1 && keyAscii >= 'a' && keyAscii <= 'z') keyAscii -= 'a' - 'A';
}

void TwoFields::onClick(Control& control, MouseButton) {
    ++clicks;
    lastClicked = control.key();
    if (control.kind == ControlKind::CheckLabel) control.caption = control.caption.empty() ? "X" : "";
}

ScreenReaderListening::ScreenReaderListening() { QAccessible::setActive(true); }
ScreenReaderListening::~ScreenReaderListening() { QAccessible::setActive(false); }

void GuiTest::SetUp() {
    clearProgramEnded();
    program_ = std::make_unique<Program>(ui_, machine_);
}

void GuiTest::TearDown() {
    program_.reset();
    // An ended program leaves Qt told to leave every loop; a turn of the main loop clears that.
    if (programEnded()) {
        QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(0); });
        QCoreApplication::exec();
    }
    clearProgramEnded();
}

void GuiTest::press(QWidget* window, int key, Qt::KeyboardModifiers modifiers, const QString& text) {
    QWidget* target = window->focusWidget() ? window->focusWidget() : window;
    if (text.isNull()) {
        QTest::keyClick(target, static_cast<Qt::Key>(key), modifiers);
        return;
    }
    QKeyEvent down(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(target, &down);
    QKeyEvent up(QEvent::KeyRelease, key, modifiers, text);
    QApplication::sendEvent(target, &up);
}

void GuiTest::type(QWidget* window, const QString& text) {
    for (QChar c : text) {
        const int key = c.isLetter() && c.unicode() < 128 ? c.toUpper().unicode() : c.unicode();
        press(window, key, Qt::NoModifier, QString(c));
    }
}

void GuiTest::show(QWidget& widget) {
    widget.show();
    widget.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&widget));
}

void TwoFieldsViewTest::SetUp() {
    FormViewTest::SetUp();
    first_ = &form_->at("Text1", 0);
    second_ = &form_->at("Text1", 1);
    desktop().setFocus(*first_);
    refreshAll();
}

}  // namespace lw::ui::test
