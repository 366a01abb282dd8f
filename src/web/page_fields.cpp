// The fields of a shown form, real elements over its face: after every input given the engine's text,
// selection, colours and focus.
#include "web/page_fields.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <map>

#include "face/control_text.h"
#include "face/face_colors.h"
#include "face/face_description.h"
#include "headless/face_raster.h"
#include "model/containers.h"
#include "text/case.h"
#include "text/cp1252.h"
#include "web/page_view.h"

namespace lw::web {

using emscripten::val;

namespace {

// A field of the page holds each line end as one "\n" where the engine's text has "\r\n": places in
// the text are counted apart by the line ends before them.
std::string withBrowserLineEnds(const std::string& text) {
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i)
        if (!(text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n')) out.push_back(text[i]);
    return out;
}

int browserPlace(const std::string& text, int place) {
    int shown = place;
    for (int i = 0; i < place && i + 1 < static_cast<int>(text.size()); ++i)
        if (text[i] == '\r' && text[i + 1] == '\n') --shown;
    return shown;
}

int enginePlace(const std::string& text, int shown) {
    int place = 0;
    for (; place < static_cast<int>(text.size()) && shown > 0; ++place, --shown)
        if (text[place] == '\r' && place + 1 < static_cast<int>(text.size()) && text[place + 1] == '\n')
            ++place;
    return place;
}

}  // namespace

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

std::string cssPixels(int pixels) { return std::to_string(pixels) + "px"; }

std::string cssColor(Color color) {
    char name[8];
    std::snprintf(name, sizeof name, "#%02X%02X%02X", redOf(color), greenOf(color), blueOf(color));
    return name;
}

std::string cssFont(const Control& control, double points) {
    char size[32];
    std::snprintf(size, sizeof size, "%.3fpx ", (points > 0 ? points : control.fontSize) * 96.0 / 72.0);
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

namespace {

// How high the browser makes a line of a font above and below its baseline, in whole pixels, as its
// canvas measures it: the same measures it lays out an input's line with.
struct BrowserLine {
    int ascent = 0;
    int descent = 0;
};

BrowserLine browserLineOf(const std::string& font) {
    static std::map<std::string, BrowserLine> measured;
    static val context = val::undefined();
    if (const auto kept = measured.find(font); kept != measured.end()) return kept->second;
    if (context.isUndefined())
        context = val::global("document")
                      .call<val>("createElement", std::string("canvas"))
                      .call<val>("getContext", std::string("2d"));
    context.set("font", font);
    const val metrics = context.call<val>("measureText", std::string("Hg"));
    const BrowserLine line{static_cast<int>(std::lround(metrics["fontBoundingBoxAscent"].as<double>())),
                           static_cast<int>(std::lround(metrics["fontBoundingBoxDescent"].as<double>()))};
    return measured.emplace(font, line).first->second;
}

}  // namespace

// The browser sets the line of an input in the middle of the box by its own measures of the font; the
// engine by its measures. The line's box is made as tall as the browser's line and placed so that its
// baseline falls on the engine's, rounded to a whole pixel.
void PageView::placeOneLine(const Control& control, const face::Rect& rect, emscripten::val& style) {
    const face::FaceMetrics metrics = faces_.metrics(face::designFace(control));
    const int border = control.borderStyle != 0 ? 1 : 0;
    const double inner = control.height - 2.0 * border * face::kTwipsPerPixel;
    const double baseline = border * face::kTwipsPerPixel + (inner - metrics.height()) / 2 + metrics.ascent;
    const BrowserLine line = browserLineOf(cssFont(control));
    const int above = static_cast<int>(std::lround(baseline * face::kScreenScale)) - border - line.ascent;
    const int below = rect.height - 2 * border - line.ascent - line.descent - above;
    if (line.ascent <= 0 || above < 0 || below < 0)
        return;  // a box lower than its line: the browser's middle
    style.set("lineHeight", cssPixels(line.ascent + line.descent));
    style.set("paddingTop", cssPixels(above));
    style.set("paddingBottom", cssPixels(below));
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

// A text box's face, alignment and border as the engine draws them, its lines where the engine writes
// them.
void PageView::placeTextBox(const Control& control, const face::Rect& rect, val style) {
    style.set("font", cssFont(control));
    style.set("textAlign", std::string(control.alignment == 1   ? "right"
                                       : control.alignment == 2 ? "center"
                                                                : "left"));
    style.set("borderStyle", std::string(control.borderStyle == 0 ? "none" : "solid"));
    style.set("borderColor", cssColor(face::kBoxBorder));
    if (face::breaksLines(control)) {
        // The engine writes a box's lines one line spacing apart, from a pixel below its border.
        const double spacing = faces_.metrics(face::designFace(control)).lineSpacing * face::kScreenScale;
        style.set("lineHeight", std::to_string(spacing) + "px");
        style.set("paddingTop", cssPixels(1));
    } else {
        placeOneLine(control, rect, style);
    }
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
    const std::string shown = text::cp1252ToUtf8(control.text);
    if (element["value"].as<std::string>() != withBrowserLineEnds(shown)) element.set("value", shown);
    element.set("disabled", !control.enabled);
    element.set("readOnly", control.locked);
    if (control.fitFloor > 0) {
        // A text that shrinks to fit its box is shown at the size the engine gives it.
        const face::TextBlock laid = face::fieldLayout(control, faces_);
        const std::string font = cssFont(control, laid.points);
        if (style["font"].as<std::string>() != font) {
            style.set("font", font);
            style.set("lineHeight", std::to_string(laid.lineHeight * face::kScreenScale) + "px");
        }
    }
    style.set("backgroundColor", cssColor(control.backColor));
    style.set("color", cssColor(control.foreColor));
    if (&control != focus) return;
    if (!document_["activeElement"].strictlyEquals(element)) element.call<void>("focus");
    element.call<void>("setSelectionRange", browserPlace(control.text, control.selStart()),
                       browserPlace(control.text, control.selStart() + control.selLength()));
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
    const int from = enginePlace(control->text, std::min(start, end));
    control->select(from, enginePlace(control->text, std::max(start, end)) - from);
}

}  // namespace lw::web
