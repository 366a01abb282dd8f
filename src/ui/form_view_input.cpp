// The operator's keys and mouse on a form view, sent to the model; the view then shows what it decided.
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include "model/keys.h"
#include "model/program.h"
#include "ui/form_painter.h"
#include "ui/form_view.h"
#include "ui/key_map.h"
#include "ui/qt_text.h"

namespace lw::ui {

namespace {

MouseButton modelButton(Qt::MouseButton button) {
    switch (button) {
        case Qt::RightButton:
            return MouseButton::Right;
        case Qt::MiddleButton:
            return MouseButton::Middle;
        default:
            return MouseButton::Left;
    }
}

void refuse(Desktop* on, const std::string& why) {
    if (on) on->ui().inputRefused(why);
}

const char* const kNotInCodePage =
    "That character cannot be typed here: the program keeps its text in the Windows-1252 code page.";
const char* const kClipboardNotInCodePage =
    "The clipboard text cannot be pasted: it holds characters outside the Windows-1252 code page.";

bool isMouseInput(QEvent::Type type) {
    return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease ||
           type == QEvent::MouseButtonDblClick || type == QEvent::MouseMove;
}

}  // namespace

bool FormView::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    Control* control = controlOfWidget_.value(watched, nullptr);
    if (type == QEvent::KeyPress) return forwardKey(control, static_cast<QKeyEvent*>(event));
    if (type == QEvent::InputMethod) {
        forwardCommitted(static_cast<QInputMethodEvent*>(event)->commitString());
        return true;
    }
    if (!control) return form_ == nullptr && (isMouseInput(type) || type == QEvent::Wheel);
    if (isMouseInput(type)) {
        if (control->kind == ControlKind::TextBox) return forwardTextMouse(*control, event);
        if (control->kind == ControlKind::ComboBox) return forwardComboMouse(*control, event);
        // Buttons are pressed with the left button only.
        if (type != QEvent::MouseMove) return static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton;
        return false;
    }
    // A turn of the wheel over a list would change its entry behind the model's back.
    if (type == QEvent::Wheel) return control->kind == ControlKind::ComboBox;
    if (type == QEvent::DragEnter || type == QEvent::Drop) return true;
    return false;
}

bool FormView::forwardKey(Control* control, QKeyEvent* event) {
    Desktop* on = desktop();
    if (!on) return true;
    const std::optional<ModelKey> key = modelKey(*event);
    if (!key) {
        refuse(on, kNotInCodePage);
        return true;
    }
    if (!key->tab && key->keyCode == 0 && key->keyAscii == 0) return true;  // a key the model has no code for
    if (key->keyAscii == keys::kCtrlV && !toCp1252(QApplication::clipboard()->text())) {
        refuse(on, kClipboardNotInCodePage);
        return true;
    }
    forwardInput([&] {
        if (key->tab) {
            on->tab(key->backwards);
            return;
        }
        on->pressKey(key->keyCode, key->shift, key->keyAscii);
        for (char c : key->more) on->typeCharacter(c);
    });
    // A closed list steps through its entries with the arrows and opens with Alt+Down or F4.
    if (form_ && control && control->kind == ControlKind::ComboBox && isModelFocus(*control) && !key->tab) {
        auto* combo = qobject_cast<QComboBox*>(editorOf(*control));
        const bool alt = event->modifiers() & Qt::AltModifier;
        if (combo && ((alt && event->key() == Qt::Key_Down) || event->key() == Qt::Key_F4)) {
            combo->showPopup();
        } else if (!alt && (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down)) {
            const int step = event->key() == Qt::Key_Up ? -1 : 1;
            const int next = control->listIndex + step;
            if (next >= 0 && next < static_cast<int>(control->items.size())) {
                const std::string entry = control->items[static_cast<size_t>(next)];
                forwardInput([&] { on->choose(*control, entry); });
            }
        }
    }
    return true;
}

void FormView::forwardCommitted(const QString& text) {
    Desktop* on = desktop();
    if (!on || text.isEmpty()) return;
    const std::optional<std::string> bytes = toCp1252(text);
    if (!bytes) {
        refuse(on, kNotInCodePage);
        return;
    }
    forwardInput([&] {
        for (char c : *bytes) on->typeCharacter(c);
    });
}

bool FormView::forwardTextMouse(Control& control, QEvent* event) {
    auto* mouse = static_cast<QMouseEvent*>(event);
    switch (event->type()) {
        case QEvent::MouseButtonPress:
            if (Desktop* on = desktop())
                forwardInput([&] { on->click(control, modelButton(mouse->button())); });
            // The caret is placed only in a field the model let the focus into.
            return !form_ || mouse->button() != Qt::LeftButton || !isModelFocus(control);
        case QEvent::MouseButtonDblClick:
            return !form_ || mouse->button() != Qt::LeftButton || !isModelFocus(control);
        case QEvent::MouseButtonRelease:
            // The middle button pastes the selection on X11: that text would bypass the model.
            return !form_ || mouse->button() != Qt::LeftButton;
        default:
            return !form_ || !isModelFocus(control);
    }
}

bool FormView::forwardComboMouse(Control& control, QEvent* event) {
    auto* mouse = static_cast<QMouseEvent*>(event);
    if (event->type() != QEvent::MouseButtonPress && event->type() != QEvent::MouseButtonDblClick)
        return false;
    if (mouse->button() != Qt::LeftButton) return true;
    Desktop* on = desktop();
    if (on && !isModelFocus(control)) forwardInput([&] { on->setFocus(control); });
    return !form_ || !isModelFocus(control);
}

void FormView::mousePressEvent(QMouseEvent* event) {
    Control* control = controlAt(event->position().toPoint());
    Desktop* on = desktop();
    if (!control || !on) return;
    const ControlKind kind = control->kind;
    if (kind == ControlKind::TabControl || kind == ControlKind::Grid || kind == ControlKind::ListBox) {
        const int entry = entryAt(*control, event->position().toPoint(), kScreenScale);
        if (entry < 0 || event->button() != Qt::LeftButton) return;
        const std::string chosen = control->items[static_cast<size_t>(entry)];
        forwardInput([&] { on->choose(*control, chosen); });
        return;
    }
    const MouseButton button = modelButton(event->button());
    forwardInput([&] { on->click(*control, button); });
}

void FormView::mouseDoubleClickEvent(QMouseEvent*) {
    // The model knows no double click; the first click of the pair has already gone to it.
}

void FormView::keyPressEvent(QKeyEvent* event) { forwardKey(nullptr, event); }

void FormView::inputMethodEvent(QInputMethodEvent* event) { forwardCommitted(event->commitString()); }

}  // namespace lw::ui
