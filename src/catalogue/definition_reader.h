#pragma once
// Reads the drawing of a form from its text, one control a line:
//
//   form TF_W2 "W-2 (Wage and Tax Statement)" 12000 7600
//   text  Text1(0)  120 600 2800 300  tag=TIN tab=0 align=center tip="..."
//   label Label1(0) 120 420 2800 180  "a Employee's social security number" size=7
//   line  -         0 400 12000 400   border=2
//   rect  myBorder  60 60 11900 7500
//   check Check(0)  5000 3000 200 200 tag="Statutory employee"
//
// After the kind come the name (`-` for an unnamed drawing element), left, top, width and height in
// twips (for a line: the two end points), an optional caption in quotes, then properties: key=value or
// flags. `#` starts a comment line.
//
// Controls can be drawn inside a container drawn before them (a panel, a tab control), with places
// relative to it: `in=NAME` on the line, or a line `in NAME` for every line after it (`in -` ends it).
// A control straight on a tab control names its page: `page=1`. A tab control lists its captions as
// `tabs="First|Second"`.
//
// `say="..."` gives the words a screen reader says for a field no caption names well, or, on a frame,
// panel or shape, the words said before the name of every field inside it. A line `say Text1(0) "..."`
// gives them to a control drawn before.

#include <stdexcept>
#include <string>

#include "catalogue/form_definition.h"

namespace lw {

struct DefinitionError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Throws DefinitionError naming the line of any fault.
FormDefinition readDefinition(const std::string& text);

}  // namespace lw
