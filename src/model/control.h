#pragma once
// A control of a form with the properties the program's logic reads and writes.
// Properties are the single source of truth; every view mirrors them.

#include <algorithm>
#include <string>
#include <vector>

#include "model/color.h"

namespace lw {

class Form;

enum class ControlKind {
    TextBox,
    Label,
    CheckLabel,  // a small label that acts as a check box: Caption "X" or empty
    Shape,
    Line,
    Picture,
    Image,
    Frame,
    OptionButton,
    ComboBox,
    ListBox,
    CommandButton,
    TabControl,
    Grid,
};

const char* controlKindName(ControlKind kind);

constexpr int kNoIndex = -1;

enum class Alignment { Left = 0, Right = 1, Center = 2 };

// A grid column's ColAlignment, all centred vertically.
constexpr int kGridAlignLeftCenter = 1;
constexpr int kGridAlignCenterCenter = 4;
constexpr int kGridAlignRightCenter = 7;

struct Control {
    ControlKind kind = ControlKind::Label;
    std::string name;
    int index = kNoIndex;  // kNoIndex for a control that is not in a control array
    Form* form = nullptr;

    std::string text;
    std::string caption;
    std::string tag;
    std::string toolTipText;
    // What a screen reader says for a field that no caption of the form names well; on a frame, panel or
    // shape, the words said before the name of every field inside it. Empty: the names come from the
    // captions around the field.
    std::string spokenName;

    bool locked = false;
    bool enabled = true;
    bool visible = true;
    bool tabStop = true;
    bool multiLine = false;
    bool wordWrap = false;
    bool isDefault = false;  // a command button pressed by Enter
    bool focusable = true;   // false keeps a field from ever taking the focus, by click, tab or code
    bool wordsOnly = false;  // a text box that only shows words, as an entry of the colour legend

    int tabIndex = 0;
    int maxLength = 0;  // 0: no limit
    // The selection of a text box, as the platform's box reports it: never past the end of the text.
    int selStart() const;
    int selLength() const;
    // Moving the start leaves a caret there, with nothing selected.
    void setSelStart(int start);
    void setSelLength(int length);
    void select(int start, int length);
    int alignment = 0;  // 0 left, 1 right, 2 center

    Color backColor = kWhite;
    Color foreColor = kBlack;
    Color borderColor = kBlack;
    bool opaque = true;   // BackStyle: false lets the form show through
    int borderStyle = 1;  // 0 none, 1 solid, 2 dash, 3 dot
    int borderWidth = 1;

    int left = 0;  // twips
    int top = 0;
    int width = 0;
    int height = 0;
    int x2 = 0;  // lines: the second end point; left/top hold the first
    int y2 = 0;

    std::string fontName = "Tahoma";
    double fontSize = 8.25;
    bool fontBold = false;
    bool fontItalic = false;
    // A text box whose text takes a smaller size of its face, down to this many points, to show whole
    // on one line, and breaks into lines when even that is too wide; 0 keeps the size as set.
    double fitFloor = 0;

    std::vector<std::string> items;  // combo and list boxes; grid rows with their cells joined by tabs
    // Grid columns: ColWidth in twips and ColAlignment by the grid's numbers (kGridAlign...). With no
    // widths the columns share the grid evenly and read from the left.
    std::vector<int> colWidths;
    std::vector<int> colAlignments;
    int listIndex = -1;
    bool value = false;   // option buttons
    std::string picture;  // picture file or icon name

    // A control drawn inside another (a panel, a tab control) has its place relative to that container,
    // as a designer lays it out, and shows only while the container does. On a tab control, `page` is
    // the tab whose page holds it.
    Control* container = nullptr;
    int page = -1;
    int tabHeight = 300;  // a tab control: the height of its strip of captions, in twips

    // Puts the control at a place of its form, in twips, as a designer lays it out.
    void place(int leftTwips, int topTwips, int widthTwips, int heightTwips) {
        left = leftTwips;
        top = topTwips;
        width = widthTwips;
        height = heightTwips;
    }

    // "Text1(5)" for an element of a control array, else the bare name.
    std::string key() const;
    bool isTextBox() const { return kind == ControlKind::TextBox; }
    // The value a check compares: Text for text boxes and lists, Caption for the others.
    const std::string& shownText() const;
    // A control can take the focus from code or a click.
    bool canTakeFocus() const;

private:
    int selStart_ = 0;
    int selLength_ = 0;
};

}  // namespace lw
