#include "web/page_view.h"

#include <algorithm>
#include <cstdio>

#include "face/face_description.h"
#include "headless/face_raster.h"
#include "model/app_error.h"
#include "model/containers.h"
#include "text/cp1252.h"
#include "web/page_fields.h"
#include "web/page_files.h"
#include "web/page_sleep.h"
#include "web/page_status.h"

namespace lw::web {

using emscripten::val;

PageView::PageView(Program& program)
    : program_(program), pictures_(faces_), document_(val::global("document")) {}

Form* PageView::inputForm() const {
    Form* form = program_.desktop.activeChild();
    return form && form->isLoaded() ? form : nullptr;
}

void PageView::runInput(std::function<void()> input, const Control* on) {
    if (engineAsleep()) {
        waitingInput_.push_back({std::move(input), on});
        return;
    }
    if (ended_ || (on && !isLive(on))) return;
    try {
        input();
    } catch (const ProgramEnded&) {
        programEnded();
    } catch (const std::exception& fault) {
        showStatus(std::string("The page could not carry out that input: ") + fault.what());
    }
    settleFiles();
    show();
    runWaitingInput();
}

void PageView::runWaitingInput() {
    while (!waitingInput_.empty()) {
        WaitingInput waiting = std::move(waitingInput_.front());
        waitingInput_.pop_front();
        runInput(std::move(waiting.input), waiting.on);
    }
}

bool PageView::isLive(const Control* control) const {
    for (const Form* form : program_.desktop.forms())
        if (form->isLoaded())
            for (const auto& owned : form->controls())
                if (owned.get() == control) return true;
    return false;
}

void PageView::programEnded() {
    ended_ = true;
    showLastingStatus("The program has ended. Reload the page to start it again.");
}

void PageView::show() {
    if (ended_) {
        // Nothing of the program is left on the page: its forms, menus and buttons went with it.
        for (const char* part : {"menus", "panel", "form-title"})
            document_.call<val>("getElementById", std::string(part)).set("textContent", std::string());
        if (shown_) clearFields(*shown_);
        shown_ = nullptr;
        val canvas = document_.call<val>("getElementById", std::string("face"));
        canvas.set("width", 0);
        canvas.set("height", 0);
        return;
    }
    buildMenus();
    buildPanel();
    if (Form* frame = program_.desktop.frame()) document_.set("title", text::cp1252ToUtf8(frame->caption));
    Form* form = inputForm();
    if (form != shown_) {
        forgetFaceLooks();
        if (shown_) clearFields(*shown_);
        shown_ = form;
        if (form) placeFields(*form, "fields");
        val title = document_.call<val>("getElementById", std::string("form-title"));
        title.set("textContent", form ? text::cp1252ToUtf8(form->caption) : std::string());
    }
    val canvas = document_.call<val>("getElementById", std::string("face"));
    if (!form) {
        canvas.set("width", 0);
        canvas.set("height", 0);
    } else if (faceChanged(*form)) {
        paintFace(*form, "face");
    }
    if (modal_) paintFace(*modal_, "modal-face");
    showFields();
}

void PageView::forget(Form& form) {
    clearFields(form);
    if (&form == shown_) {
        forgetFaceLooks();
        shown_ = nullptr;
    }
    if (&form == modal_) modal_ = nullptr;
    modals_.erase(std::remove(modals_.begin(), modals_.end(), &form), modals_.end());
}

bool PageView::isLoaded(const Form& form) const { return form.isLoaded(); }

void PageView::showStatus(const std::string& utf8) { web::showStatus(utf8); }

// The engine's own painter draws the face as the runner draws it, with the faces it measured the text
// with; the canvas shows its pixels one for one.
void PageView::paintFace(Form& form, const std::string& canvasId) {
    const bool hostsEditors = &form == shown_ || &form == modal_;
    const face::FaceDescription face =
        face::describeFace(form, face::FaceRequest{face::kScreenScale, hostsEditors, {}}, faces_);
    headless::RasterImage image(face.size.width, face.size.height, face.ground);
    headless::paintFace(face, image, faces_, pictures_);
    if (hostsEditors) paintButtons(form, image, faces_, pictures_);

    const int width = image.width(), height = image.height();
    std::vector<std::uint8_t> rgba(static_cast<std::size_t>(width) * height * 4);
    const std::vector<std::uint8_t>& rgb = image.rgb();
    for (std::size_t pixel = 0, count = rgba.size() / 4; pixel < count; ++pixel) {
        rgba[pixel * 4] = rgb[pixel * 3];
        rgba[pixel * 4 + 1] = rgb[pixel * 3 + 1];
        rgba[pixel * 4 + 2] = rgb[pixel * 3 + 2];
        rgba[pixel * 4 + 3] = 255;
    }
    val canvas = document_.call<val>("getElementById", canvasId);
    if (canvas["width"].as<int>() != width) canvas.set("width", width);
    if (canvas["height"].as<int>() != height) canvas.set("height", height);
    val pixels = val::global("Uint8ClampedArray").new_(val(rgba.size()));
    pixels.call<void>("set", val(emscripten::typed_memory_view(rgba.size(), rgba.data())));
    val picture = val::global("ImageData").new_(pixels, width, height);
    canvas.call<val>("getContext", std::string("2d")).call<void>("putImageData", picture, 0, 0);
}

Control* PageView::controlAt(Form& form, int x, int y) const {
    const std::vector<const Control*> order = face::paintOrder(form);
    for (auto it = order.rbegin(); it != order.rend(); ++it) {
        const Control& control = **it;
        // Shapes and lines take no clicks: what lies under them does, as in the window.
        if (!isShown(control) || control.kind == ControlKind::Line || control.kind == ControlKind::Shape)
            continue;
        const face::Rect rect = face::controlRect(control, face::kScreenScale);
        if (x >= rect.x && y >= rect.y && x < rect.x + rect.width && y < rect.y + rect.height)
            return const_cast<Control*>(&control);
    }
    return nullptr;
}

void PageView::faceClicked(int x, int y, int button) {
    Form* form = inputForm();
    if (!form || modal_) return;
    Control* control = controlAt(*form, x, y);
    if (!control || !control->enabled) return;
    if (control->kind == ControlKind::TabControl || control->kind == ControlKind::Grid ||
        control->kind == ControlKind::ListBox) {
        const int entry = face::entryAt(*control, face::Point{x, y}, face::kScreenScale, faces_);
        if (entry >= 0) controlUsed(indexOf(control), entry);
        return;
    }
    const MouseButton pressed = button == 2   ? MouseButton::Right
                                : button == 1 ? MouseButton::Middle
                                              : MouseButton::Left;
    runInput([this, control, pressed] { program_.desktop.click(*control, pressed); }, control);
}

void PageView::menuChosen(const std::string& name) {
    if (modal_) return;
    runInput([this, name] { program_.desktop.chooseMenu(name); });
}

void PageView::pasted(const std::string& utf8) {
    if (!program_.desktop.focus()) return;
    const std::optional<std::string> bytes = text::utf8ToCp1252(utf8);
    if (!bytes) {
        showStatus(
            "The clipboard text cannot be pasted: it holds characters outside the Windows-1252 code page.");
        return;
    }
    runInput([this, text = *bytes] { program_.desktop.paste(text); });
}

}  // namespace lw::web
