// The controls of a shown form as page elements over its face, made the same way for the main face and
// for the dialog of a modal form: text boxes as inputs, check boxes and option buttons as check boxes and
// radio buttons over what the engine paints, combo boxes as selects, command buttons as buttons, and the
// tabs of a tab control and the rows of a grid or list as elements a click or a key chooses.
#include <algorithm>
#include <filesystem>

#include "catalogue/field_names.h"
#include "face/caption_text.h"
#include "face/control_text.h"
#include "face/face_description.h"
#include "model/containers.h"
#include "text/cp1252.h"
#include "web/page_fields.h"
#include "web/page_view.h"

namespace lw::web {

using emscripten::val;

namespace {

void placeAt(val element, const face::Rect& rect) {
    val style = element["style"];
    style.set("left", cssPixels(rect.x));
    style.set("top", cssPixels(rect.y));
    style.set("width", cssPixels(rect.width));
    style.set("height", cssPixels(rect.height));
}

// The controls the page hosts as elements of their own; shapes, lines and frames are only painted, and
// so is a button without caption or picture, which the form keeps unseen.
bool isHosted(const Control& control) {
    switch (control.kind) {
        case ControlKind::TextBox:
            return !control.wordsOnly;
        case ControlKind::CommandButton:
            return !control.caption.empty() || !control.picture.empty();
        case ControlKind::Label:
        case ControlKind::Picture:
        case ControlKind::Image:
        case ControlKind::CheckLabel:
        case ControlKind::OptionButton:
        case ControlKind::ComboBox:
        case ControlKind::TabControl:
        case ControlKind::Grid:
        case ControlKind::ListBox:
            return true;
        default:
            return false;
    }
}

// What a screen reader says of a control: the name the desktop gives it, a button's caption, its tip;
// the control's own name for a field nothing names, nothing for a picture nothing names.
std::string nameOf(const Control& control, const std::string& named) {
    if (!named.empty()) return named;
    if (control.kind == ControlKind::CommandButton && !control.caption.empty())
        return face::withoutAccessMarks(control.caption);
    if (!control.toolTipText.empty()) return control.toolTipText;
    if (control.kind == ControlKind::Picture || control.kind == ControlKind::Image) return {};
    return control.key();
}

bool hasEntries(const Control& control) {
    return control.kind == ControlKind::TabControl || control.kind == ControlKind::Grid ||
           control.kind == ControlKind::ListBox;
}

}  // namespace

void PageView::placeFields(Form& form, const std::string& layerId) {
    val layer = document_.call<val>("getElementById", layerId);
    const std::map<const Control*, FieldName> names = fieldNamesOf(form);
    for (const auto& owned : form.controls()) {
        Control& control = *owned;
        if (!isHosted(control)) continue;
        const auto named = names.find(&control);
        val element = makeElement(
            control,
            text::cp1252ToUtf8(nameOf(control, named != names.end() ? named->second.text : std::string())));
        element.call<void>("setAttribute", std::string("data-name"), control.key());
        face::Rect rect = face::controlRect(control, face::kScreenScale);
        // A tab control's pages are the face beneath: only its strip of tabs is an element.
        if (control.kind == ControlKind::TabControl)
            rect.height = face::tabStripHeight(control, face::kScreenScale);
        placeAt(element, rect);
        if (control.kind == ControlKind::TextBox) placeTextBox(control, rect, element["style"]);
        layer.call<void>("appendChild", element);
        fields_.push_back({&control, element});
    }
    numberFields();
}

val PageView::makeElement(Control& control, const std::string& name) {
    auto make = [&](const char* tag) { return document_.call<val>("createElement", std::string(tag)); };
    val element = val::undefined();
    switch (control.kind) {
        case ControlKind::TextBox:
            // A box whose text may take several lines on paper edits them as lines.
            element = make(face::breaksLines(control) ? "textarea" : "input");
            element.call<void>("setAttribute", std::string("autocomplete"), std::string("off"));
            element.call<void>("setAttribute", std::string("spellcheck"), std::string("false"));
            break;
        case ControlKind::CheckLabel:
        case ControlKind::OptionButton:
            // The engine paints the mark; the element over it is what a click, a key and a screen reader
            // reach.
            element = make("input");
            element.set("type", std::string(control.kind == ControlKind::CheckLabel ? "checkbox" : "radio"));
            element.set("className", std::string("over"));
            break;
        case ControlKind::ComboBox:
            element = make("select");
            element["style"].set("font", cssFont(control));
            break;
        case ControlKind::CommandButton:
            element = make("button");
            element.set("type", std::string("button"));
            element["style"].set("font", cssFont(control));
            break;
        case ControlKind::Label:
            // The words the engine paints, there for a screen reader to read and a click to pass through.
            element = make("div");
            element.set("className", std::string("over caption"));
            return element;
        case ControlKind::Picture:
        case ControlKind::Image:
            // A picture is painted on the face; the element says which, and lets a click through.
            element = make("div");
            element.set("className", std::string("over caption"));
            element.call<void>("setAttribute", std::string("role"), std::string("img"));
            break;
        default:
            element = make("div");
            element.set("className", std::string("over"));
            element.call<void>("setAttribute", std::string("role"),
                               std::string(control.kind == ControlKind::TabControl ? "tablist" : "listbox"));
            break;
    }
    if (name.empty())
        element.call<void>("setAttribute", std::string("aria-hidden"), std::string("true"));
    else
        element.call<void>("setAttribute", std::string("aria-label"), name);
    return element;
}

// The tabs of a tab control and the rows of a grid or list, each an element where the engine draws it:
// a tab across the strip's equal shares, a row a row's height down, a grid's header row not among them.
void PageView::placeEntries(const Control& control, val element, int field) {
    element.set("textContent", std::string());
    const face::Rect whole = face::controlRect(control, face::kScreenScale);
    const bool tabs = control.kind == ControlKind::TabControl;
    const int count = static_cast<int>(control.items.size());
    const int rowHeight = tabs ? 0 : face::rowHeight(control, face::kScreenScale, faces_);
    for (int entry = control.kind == ControlKind::Grid ? 1 : 0; entry < count; ++entry) {
        val item = document_.call<val>("createElement", std::string(tabs ? "button" : "div"));
        item.call<void>("setAttribute", std::string("role"), std::string(tabs ? "tab" : "option"));
        if (tabs)
            item.set("type", std::string("button"));
        else
            item.set(
                "tabIndex",
                entry == std::max(control.listIndex, control.kind == ControlKind::Grid ? 1 : 0) ? 0 : -1);
        item.call<void>("setAttribute", std::string("data-control"), field);
        item.call<void>("setAttribute", std::string("data-entry"), entry);
        std::string words = control.items[static_cast<std::size_t>(entry)];
        std::replace(words.begin(), words.end(), '\t', ' ');
        item.call<void>("setAttribute", std::string("aria-label"), text::cp1252ToUtf8(words));
        const face::Rect place =
            tabs ? face::Rect{whole.width * entry / count, 0,
                              whole.width * (entry + 1) / count - whole.width * entry / count,
                              face::tabStripHeight(control, face::kScreenScale)}
                 : face::Rect{0, 1 + entry * rowHeight, whole.width, rowHeight};
        placeAt(item, place);
        element.call<void>("appendChild", item);
    }
}

// Every element carries its place in the list of fields: a text box as a field the keys go to, any
// other control as one that is used by a click.
void PageView::numberFields() {
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        Field& field = fields_[i];
        const int index = static_cast<int>(i);
        const bool text = field.control->kind == ControlKind::TextBox;
        if (text) field.element.set("id", "field-" + std::to_string(index));
        field.element.call<void>("setAttribute", std::string(text ? "data-field" : "data-control"), index);
        if (!hasEntries(*field.control)) continue;
        placeEntries(*field.control, field.element, index);
        field.shown.clear();  // the entries made anew show their choice at the next showing
    }
}

// A check, an option, a choice or a button as the engine holds it; the entries of a list follow its
// items and the one chosen.
void PageView::showControl(Field& field) {
    const Control& control = *field.control;
    val element = field.element;
    switch (control.kind) {
        case ControlKind::CheckLabel:
            element.set("checked", !control.caption.empty());
            break;
        case ControlKind::OptionButton:
            element.set("checked", control.value);
            break;
        case ControlKind::Picture:
        case ControlKind::Image:
            element.call<void>("setAttribute", std::string("data-picture"),
                               std::filesystem::path(control.picture).filename().string());
            break;
        case ControlKind::CommandButton:
        case ControlKind::Label: {
            const std::string caption =
                text::cp1252ToUtf8(face::withoutAccessMarks(face::withLineFeeds(control.caption)));
            if (element["textContent"].as<std::string>() != caption) element.set("textContent", caption);
            break;
        }
        case ControlKind::ComboBox: {
            val options = element["options"];
            const int count = static_cast<int>(control.items.size());
            bool same = options["length"].as<int>() == count;
            for (int i = 0; same && i < count; ++i)
                same = options[i]["text"].as<std::string>() ==
                       text::cp1252ToUtf8(control.items[static_cast<std::size_t>(i)]);
            if (!same) {
                element.set("textContent", std::string());
                for (const std::string& item : control.items) {
                    val option = document_.call<val>("createElement", std::string("option"));
                    option.set("textContent", text::cp1252ToUtf8(item));
                    element.call<void>("appendChild", option);
                }
            }
            element.set("selectedIndex", control.listIndex);
            break;
        }
        default: {
            val entries = element["children"];
            const int first = control.kind == ControlKind::Grid ? 1 : 0;
            if (entries["length"].as<int>() != std::max(0, static_cast<int>(control.items.size()) - first))
                placeEntries(control, element, indexOf(&control));
            const int chosen = control.kind == ControlKind::TabControl ? tabOf(control) : control.listIndex;
            for (int i = 0, count = entries["length"].as<int>(); i < count; ++i)
                entries[i].call<void>("setAttribute", std::string("aria-selected"),
                                      std::string(i + first == chosen ? "true" : "false"));
            break;
        }
    }
}

// A list or a strip of tabs is focused on its chosen entry, else its first.
val PageView::focusTarget(const Field& field) const {
    if (!hasEntries(*field.control)) return field.element;
    const val chosen = field.element.call<val>("querySelector", std::string("[aria-selected=true]"));
    if (!chosen.isNull()) return chosen;
    const val first = field.element["firstElementChild"];
    return first.isNull() ? field.element : first;
}

Control* PageView::usableField(int field) const {
    if (field < 0 || field >= static_cast<int>(fields_.size())) return nullptr;
    Control* control = fields_[static_cast<std::size_t>(field)].control;
    return control->form == program_.desktop.inputForm() && isShown(*control) && control->enabled ? control
                                                                                                  : nullptr;
}

void PageView::controlUsed(int field, int entry) {
    Control* control = usableField(field);
    if (!control || control->kind == ControlKind::TextBox) return;
    if (entry < 0) {
        runInput([this, control] { program_.desktop.click(*control); }, control);
        return;
    }
    if (entry >= static_cast<int>(control->items.size())) return;
    const std::string chosen = control->items[static_cast<std::size_t>(entry)];
    runInput([this, control, chosen] { program_.desktop.choose(*control, chosen); }, control);
}

}  // namespace lw::web
