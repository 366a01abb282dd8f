#pragma once
// The program in a browser page: the frame's menus as HTML, the shown form's face painted on a canvas
// by the engine's description, its controls real page elements over the face, and modal forms as a
// dialog that hosts their controls the same way. After every input the page shows what the engine
// holds: text, selection, checks, choices, colours and focus.

#include <emscripten/val.h>

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "face/geometry.h"
#include "headless/picture_files.h"
#include "headless/truetype_faces.h"
#include "model/look_tracker.h"
#include "model/program.h"

namespace lw::web {

class PageView {
public:
    explicit PageView(Program& program);

    // Shows the engine's state: menus, the form on the screen, its fields and their focus.
    void show();
    // The program has ended: the page shows only that, and takes no more input.
    void programEnded();
    // The engine is about to drop a form: nothing of the page may point at it any more.
    void forget(Form& form);
    // Shows a modal form as a dialog over the page, on top of any shown before it.
    void showModal(Form& form);
    // A modal form was answered: the dialog shows the one beneath it, or closes.
    void closeModal();
    bool isLoaded(const Form& form) const;
    void showStatus(const std::string& utf8);
    // Runs the input that came in while the engine slept.
    void runWaitingInput();

    // The operator's input, from the page.
    // A key as the page saw it: its key code, the shift state (1 Shift, 2 Ctrl, 4 Alt) and its name or
    // the character it types.
    void key(int keyCode, int shift, const std::string& name);
    bool fieldPressed(int field);
    void fieldSelected(int field, int start, int end);
    // A click on the face with the mouse button the page names (0 left, 1 middle, 2 right).
    void faceClicked(int x, int y, int button);
    void menuChosen(const std::string& name);
    void pasted(const std::string& utf8);
    void frameButton(int button);
    // A control other than a text box used: clicked, or one of its entries (a list's row, a tab, a
    // combo box's item) chosen.
    void controlUsed(int field, int entry);
    // Escape or the dialog's close box: the modal form is asked to unload, and may refuse.
    void dialogClosing();

    // What becomes of a key before the element it is pressed on sees it.
    enum class KeySeen { Passes = 0, Taken = 1, ChoosesItem = 2, ToEngine = 3 };
    // A key pressed (or Alt released) anywhere in the page: the menubar's keys are taken here, and the
    // frame's keys pressed outside a field go to the engine.
    KeySeen keySeen(int keyCode, int shift, bool released);

private:
    // A control of a shown form hosted as a page element over its face.
    struct Field {
        Control* control = nullptr;
        emscripten::val element = emscripten::val::undefined();
        // What the element last showed of a control other than a text box; while the control is the
        // same, its element is left alone.
        std::string shown;
    };

    Form* inputForm() const;
    // Runs an input of the operator and shows what follows. While a modal form's wait sleeps, the input
    // waits in turn for the wait to run it on its own stack: the engine's stack sleeps in one place only.
    // An input on a control is dropped when that control has gone by then.
    void runInput(std::function<void()> input, const Control* on = nullptr);
    bool isLive(const Control* control) const;
    void buildMenus();
    KeySeen menuKey(emscripten::val active, int keyCode);
    void rememberFocusBeforeMenus();
    void closeOpenMenus();
    void focusTitle(emscripten::val title);
    void focusMenubar();
    void openMenu(emscripten::val title, bool atLastItem);
    // The menus close and the engine's focused field, else what had the focus before them, takes it.
    void closeMenusByKey();
    void buildPanel();
    // The controls of a form as page elements in the layer over its face; the main face and the dialog
    // host theirs alike.
    void placeFields(Form& form, const std::string& layerId);
    emscripten::val makeElement(Control& control, const std::string& name);
    void placeTextBox(const Control& control, const face::Rect& rect, emscripten::val style);
    void placeOneLine(const Control& control, const face::Rect& rect, emscripten::val& style);
    void placeEntries(const Control& control, emscripten::val element, int field);
    void clearFields(const Form& form);
    void numberFields();
    void showFields();
    void showField(Field& field, const Control* focus);
    void showControl(Field& field);
    // The element that takes the page's focus when the engine's focus is on the field.
    emscripten::val focusTarget(const Field& field) const;
    void showDialog();
    // The modal forms beneath the innermost, each on the screen under it as a dialog of its own.
    void showOuterModals();
    void paintFace(Form& form, const std::string& canvasId);
    // Whether the shown form's face looks different from the last time it was asked: a key that only
    // edits a field, which the page hosts as an input, leaves the painted face as it is.
    bool faceChanged(const Form& form);
    void forgetFaceLooks();
    Control* controlAt(Form& form, int x, int y) const;
    int indexOf(const Control* control) const;
    // The field of the form that takes the operator's input, or null.
    Control* usableField(int field) const;

    Program& program_;
    bool ended_ = false;
    headless::TrueTypeFaces faces_;
    headless::PictureFiles pictures_;
    emscripten::val document_;
    Form* shown_ = nullptr;
    // The modal forms waiting for their answer, innermost last; the dialog hosts the innermost.
    std::vector<Form*> modals_;
    Form* modal_ = nullptr;
    struct OuterModal {
        Form* form = nullptr;
        emscripten::val dialog = emscripten::val::undefined();
    };
    std::vector<OuterModal> outerModals_;
    std::vector<Field> fields_;
    struct WaitingInput {
        std::function<void()> input;
        const Control* on = nullptr;
    };
    std::deque<WaitingInput> waitingInput_;
    LookTracker faceLooks_;
    std::size_t formLook_ = 0;
    std::map<const Control*, face::Rect> dollarSigns_;
    std::string menusShown_;
    emscripten::val focusBeforeMenus_ = emscripten::val::null();
    bool altAlone_ = false;
    std::vector<Control*> panelButtons_;
    std::string panelShown_;
};

}  // namespace lw::web
