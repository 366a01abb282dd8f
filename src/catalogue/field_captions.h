#pragma once
// The captions that stand around a field on the drawing of a form: the one above it in its column, the
// one on its line, the numbered caption of the box they belong to, and the frame or panel around it.

#include <string>

#include "model/form.h"

namespace lw::captions {

// Line breaks, tabs and runs of blanks become one blank; "&" marks of access keys go.
std::string flattened(const std::string& caption);

// "12a." or "e" at the start of a flattened caption, or an item letter of a K-1 such as "J" or "H2"
// when the raw caption sets it apart by two blanks: the box it names, with `rest` where the words start.
std::string boxOf(const std::string& rawCaption, std::size_t& rest);
bool namesABox(const Control& label);

// A label with words of its own, not a lone "$" or a colon.
bool isCaptionLabel(const Control& c);

// The nearest caption above the field in its column, looking past the fields stacked right above it
// as a column of a table does; `gap` receives its distance.
const Control* captionAbove(const Form& form, const Control& field, int* gap = nullptr);
// The nearest caption above a caption, within the distance of a sub-caption from its box's caption.
const Control* headingOver(const Form& form, const Control& caption, bool numberedOnly);

// How to look along a control's line for its caption.
struct Beside {
    bool toTheRight = false;
    int reach = 450;           // twips between the caption and the control
    bool headingsToo = false;  // else not a caption that heads fields of its own below it
    bool acrossRules = false;  // else not one that a rule drawn down the page sets apart
};
// The nearest caption on the control's line; `gap` receives its distance.
const Control* captionBeside(const Form& form, const Control& control, const Beside& how, int* gap = nullptr);
// The caption of a check box: the nearer of those on its line, left or right.
const Control* checkBoxCaption(const Form& form, const Control& box);
// A caption naming a box to the left of another caption on its line, as "13." before "Statutory".
const Control* numberedBeside(const Form& form, const Control& caption);

// The caption of the field's row in a table: on its line, to the left of the fields before it.
const Control* rowCaptionOf(const Form& form, const Control& field);
// A heading spans the width of the fields of its column.
bool headsColumnOf(const Control& heading, const Control& field);

// The innermost frame, panel or shape around the control that has words to say: a `spokenName`, or
// with `captioned`, a frame's caption too.
const Control* groupAround(const Form& form, const Control& control, bool captioned);

// Places on the form, whatever panels or tab pages the controls lie in.
int leftOf(const Control& c);
int topOf(const Control& c);

}  // namespace lw::captions
