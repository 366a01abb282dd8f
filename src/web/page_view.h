#pragma once
// The program in a browser page: the frame's menus as HTML, the shown form's face painted on a canvas
// by the engine's description, its fields real inputs over the face, and message boxes as dialogs.
// After every input the page shows what the engine holds: text, selection, colours and focus.

#include <emscripten/val.h>

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
    // The engine is about to drop a form: nothing of the page may point at it any more.
    void forget(Form& form);
    // Shows a modal form as a dialog; true while it is still loaded.
    void showModal(Form& form);
    void closeModal();
    bool isLoaded(const Form& form) const;
    void showStatus(const std::string& utf8);

    // The operator's input, from the page.
    // A key as the page saw it: its key code, the shift state (1 Shift, 2 Ctrl, 4 Alt) and its name or
    // the character it types.
    void key(int keyCode, int shift, const std::string& name);
    bool fieldPressed(int field);
    void fieldSelected(int field, int start, int end);
    void faceClicked(int x, int y);
    void menuChosen(const std::string& name);
    void pasted(const std::string& utf8);
    void dialogButton(int button);
    void frameButton(int button);

private:
    struct Field {
        Control* control = nullptr;
        emscripten::val element = emscripten::val::undefined();
    };

    Form* inputForm() const;
    void runInput(const std::function<void()>& input);
    void buildMenus();
    void buildPanel();
    void placeFields(Form& form);
    void placeOneLine(const Control& control, const face::Rect& rect, emscripten::val& style);
    void clearFields();
    void showFields();
    void showField(Field& field, const Control* focus);
    void paintFace(Form& form, const std::string& canvasId);
    // Whether the shown form's face looks different from the last time it was asked: a key that only
    // edits a field, which the page hosts as an input, leaves the painted face as it is.
    bool faceChanged(const Form& form);
    void forgetFaceLooks();
    Control* controlAt(Form& form, int x, int y) const;
    int indexOf(const Control* control) const;

    Program& program_;
    headless::TrueTypeFaces faces_;
    headless::PictureFiles pictures_;
    emscripten::val document_;
    Form* shown_ = nullptr;
    Form* modal_ = nullptr;
    std::vector<Field> fields_;
    LookTracker faceLooks_;
    std::size_t formLook_ = 0;
    std::map<const Control*, face::Rect> dollarSigns_;
    std::vector<Control*> dialogButtons_;
    std::string menusShown_;
    std::vector<Control*> panelButtons_;
    std::string panelShown_;
};

}  // namespace lw::web
