// The fields of a shown form, real elements over its face: after every input given the engine's text,
// selection, colours and focus.
#include "web/page_fields.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "face/face_description.h"
#include "headless/face_raster.h"
#include "model/containers.h"
#include "text/case.h"
#include "text/cp1252.h"
#include "web/page_view.h"

namespace lw::web {

using emscripten::val;

// The families index.html loads from the font files the engine measures with.
std::string cssFamily(const std::string& faceName) {
    const std::string name = text::toLower(faceName);
    if (name == "tahoma") return "LwTahoma";
    if (name == "arial narrow" || name == "arialnarrow") return "LwSansNarrow";
    if (name == "arial") return "LwSans";
    if (name == "times new roman") return "LwSerif";
    if (name == "courier new") return "LwMono";
    return "LwDejaVu";
}

std::string cssColor(Color color) {
    char name[8];
    std::snprintf(name, sizeof name, "#%02X%02X%02X", redOf(color), greenOf(color), blueOf(color));
    return name;
}

std::string cssFont(const Control& control) {
    char size[32];
    std::snprintf(size, sizeof size, "%.3fpx ", control.fontSize * 96.0 / 72.0);
    return std::string(control.fontItalic ? "italic " : "") + (control.fontBold ? "bold " : "") + size +
           cssFamily(control.fontName);
}

void paintButtons(const Form& form, headless::RasterImage& image, headless::TrueTypeFaces& faces,
                  headless::PictureFiles& pictures) {
    for (const Control* control : face::paintOrder(form)) {
        if (!isShown(*control) || control->kind == ControlKind::TextBox || !face::hasEditor(control->kind))
            continue;
        headless::paintItems(face::describeControl(*control, face::kScreenScale, faces), image,
                             image.bounds(), faces, pictures);
    }
}

// The elements of a form that is no longer shown go; the others keep their elements, numbered anew.
void PageView::clearFields(const Form& form) {
    const auto gone = std::remove_if(fields_.begin(), fields_.end(), [&](Field& field) {
        if (field.control->form != &form) return false;
        field.element.call<void>("remove");
        return true;
    });
    if (gone == fields_.end()) return;
    fields_.erase(gone, fields_.end());
    numberFields();
}

void PageView::showFields() {
    const Control* focus = program_.desktop.focus();
    for (Field& field : fields_) showField(field, focus);
    if (!focus || indexOf(focus) < 0) {
        val active = document_["activeElement"];
        if (!active.isNull() && active.call<bool>("hasAttribute", std::string("data-field")))
            active.call<void>("blur");
    }
}

namespace {

// Everything of a control other than a text box that its element shows.
std::string shownState(const Control& control) {
    std::string state{isShown(control) ? '1' : '0', control.enabled ? '1' : '0', control.value ? '1' : '0'};
    state += std::to_string(control.listIndex) + '\x1f' + control.caption + '\x1f' + control.picture;
    for (const std::string& item : control.items) state += '\x1e' + item;
    return state;
}

}  // namespace

void PageView::showField(Field& field, const Control* focus) {
    const Control& control = *field.control;
    val element = field.element;
    val style = element["style"];
    if (control.kind != ControlKind::TextBox) {
        // A check, an option or a select the operator changes in the page shows the engine's answer
        // again, even when the engine left it as it was.
        const bool changedByPage = control.kind == ControlKind::CheckLabel ||
                                   control.kind == ControlKind::OptionButton ||
                                   control.kind == ControlKind::ComboBox;
        std::string state = shownState(control);
        if (state != field.shown || changedByPage) {
            style.set("display", std::string(isShown(control) ? "block" : "none"));
            element.set("disabled", !control.enabled);
            showControl(field);
            field.shown = std::move(state);
        }
        if (&control != focus) return;
        const val target = focusTarget(field);
        if (!document_["activeElement"].strictlyEquals(target) &&
            !element.call<bool>("contains", document_["activeElement"]))
            target.call<void>("focus");
        return;
    }
    style.set("display", std::string(isShown(control) ? "block" : "none"));
    element.set("disabled", !control.enabled);
    const std::string shown = text::cp1252ToUtf8(control.text);
    if (element["value"].as<std::string>() != shown) element.set("value", shown);
    element.set("readOnly", control.locked);
    style.set("backgroundColor", cssColor(control.backColor));
    style.set("color", cssColor(control.foreColor));
    if (&control != focus) return;
    if (!document_["activeElement"].strictlyEquals(element)) element.call<void>("focus");
    element.call<void>("setSelectionRange", control.selStart(), control.selStart() + control.selLength());
}

int PageView::indexOf(const Control* control) const {
    for (std::size_t i = 0; i < fields_.size(); ++i)
        if (fields_[i].control == control) return static_cast<int>(i);
    return -1;
}

bool PageView::fieldPressed(int field) {
    Control* control = usableField(field);
    if (!control) return false;
    if (program_.desktop.focus() != control)
        runInput([this, control] { program_.desktop.click(*control); }, control);
    return program_.desktop.focus() == control;
}

// A caret put or text selected with the mouse is the engine's selection.
void PageView::fieldSelected(int field, int start, int end) {
    Control* control = usableField(field);
    if (!control || program_.desktop.focus() != control) return;
    control->select(std::min(start, end), std::abs(end - start));
}

}  // namespace lw::web
