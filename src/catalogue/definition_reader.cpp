#include "catalogue/definition_reader.h"

#include <cstdlib>
#include <map>
#include <sstream>

#include "model/containers.h"
#include "model/form.h"
#include "text/words.h"

namespace lw {

namespace {

struct Kind {
    const char* word;
    ControlKind kind;
    const char* unnamed;  // the array that an unnamed element joins
};

constexpr Kind kKinds[] = {
    {"text", ControlKind::TextBox, "Text9"},
    {"label", ControlKind::Label, "LabelForm"},
    {"check", ControlKind::CheckLabel, "Check"},
    {"rect", ControlKind::Shape, "Shape1"},
    {"line", ControlKind::Line, "Line1"},
    {"picture", ControlKind::Picture, "Picture9"},
    {"image", ControlKind::Image, "Image1"},
    {"frame", ControlKind::Frame, "Frame9"},
    {"option", ControlKind::OptionButton, "Option1"},
    {"combo", ControlKind::ComboBox, "Combo1"},
    {"list", ControlKind::ListBox, "List1"},
    {"button", ControlKind::CommandButton, "Command1"},
    {"tabs", ControlKind::TabControl, "TabStrip1"},
    {"grid", ControlKind::Grid, "Grid1"},
};

class LineReader {
public:
    LineReader(int number, std::vector<std::string> words) : number_(number), words_(std::move(words)) {}

    [[noreturn]] void fail(const std::string& why) const {
        throw DefinitionError("line " + std::to_string(number_) + ": " + why);
    }
    bool more() const { return next_ < words_.size(); }
    const std::string& peek() const { return words_[next_]; }
    std::string take(const char* what) {
        if (!more()) fail(std::string("missing ") + what);
        return words_[next_++];
    }
    int takeNumber(const char* what) {
        std::string word = take(what);
        return toNumber(word, what);
    }
    int toNumber(const std::string& word, const char* what) const {
        char* end = nullptr;
        long value = std::strtol(word.c_str(), &end, 0);
        if (word.empty() || *end != '\0' || value < -1000000 || value > 1000000)
            fail(std::string("bad ") + what + " \"" + word + "\"");
        return static_cast<int>(value);
    }

private:
    int number_;
    std::vector<std::string> words_;
    std::size_t next_ = 0;
};

// "Text1(5)" gives Text1 and 5; a bare name gives no index.
void readName(LineReader& line, const std::string& word, Control& c) {
    std::size_t open = word.find('(');
    if (open == std::string::npos) {
        c.name = word;
        return;
    }
    if (word.back() != ')' || open == 0) line.fail("bad control name \"" + word + "\"");
    c.name = word.substr(0, open);
    c.index = line.toNumber(word.substr(open + 1, word.size() - open - 2), "index");
}

int alignmentOf(LineReader& line, const std::string& value) {
    if (value == "left") return 0;
    if (value == "right") return 1;
    if (value == "center") return 2;
    line.fail("bad alignment \"" + value + "\"");
}

constexpr const char* kFlags[] = {"locked", "nostop", "hidden",      "disabled", "multi",  "bold",
                                  "italic", "opaque", "transparent", "wrap",     "default"};

bool isFlag(const std::string& word) {
    for (const char* flag : kFlags)
        if (word == flag) return true;
    return false;
}

std::vector<std::string> captionsOf(const std::string& value) {
    std::vector<std::string> captions;
    std::size_t from = 0;
    for (std::size_t bar = value.find('|'); bar != std::string::npos; bar = value.find('|', from)) {
        captions.push_back(value.substr(from, bar - from));
        from = bar + 1;
    }
    captions.push_back(value.substr(from));
    return captions;
}

// A flag: a word alone that turns a property on or off.
void readFlag(LineReader& line, const std::string& word, Control& c) {
    if (word == "locked")
        c.locked = true;
    else if (word == "nostop")
        c.tabStop = false;
    else if (word == "hidden")
        c.visible = false;
    else if (word == "disabled")
        c.enabled = false;
    else if (word == "multi")
        c.multiLine = true;
    else if (word == "bold")
        c.fontBold = true;
    else if (word == "italic")
        c.fontItalic = true;
    else if (word == "opaque")
        c.opaque = true;
    else if (word == "transparent")
        c.opaque = false;
    else if (word == "wrap")
        c.wordWrap = true;
    else if (word == "default")
        c.isDefault = true;
    else
        line.fail("unknown flag \"" + word + "\"");
}

Color colorOf(const std::string& value) {
    return static_cast<Color>(std::strtoul(value.c_str(), nullptr, 0));
}

// A setting: key=value.
void readSetting(LineReader& line, const std::string& key, const std::string& value,
                 ControlDefinition& designed) {
    Control& c = designed.control;
    if (key == "tag")
        c.tag = value;
    else if (key == "tab")
        c.tabIndex = line.toNumber(value, "tab index");
    else if (key == "tip")
        c.toolTipText = value;
    else if (key == "say")
        c.spokenName = value;
    else if (key == "text")
        c.text = value;
    else if (key == "caption")
        c.caption = value;
    else if (key == "align")
        c.alignment = alignmentOf(line, value);
    else if (key == "max")
        c.maxLength = line.toNumber(value, "length");
    else if (key == "size")
        c.fontSize = std::atof(value.c_str());
    else if (key == "fit")
        c.fitFloor = std::atof(value.c_str());
    else if (key == "font")
        c.fontName = value;
    else if (key == "back")
        c.backColor = colorOf(value), c.opaque = true;
    else if (key == "fore")
        c.foreColor = colorOf(value);
    else if (key == "border")
        c.borderWidth = line.toNumber(value, "border width");
    else if (key == "style")
        c.borderStyle = line.toNumber(value, "border style");
    else if (key == "color")
        c.borderColor = colorOf(value);
    else if (key == "picture")
        c.picture = value;
    else if (key == "in")
        designed.container = value == "-" ? std::string() : value;
    else if (key == "page")
        c.page = line.toNumber(value, "page");
    else if (key == "tabs")
        c.items = captionsOf(value), c.listIndex = 0, c.text = c.items.front();
    else if (key == "tabheight")
        c.tabHeight = line.toNumber(value, "tab height");
    else
        line.fail("unknown property \"" + key + "\"");
}

void readProperty(LineReader& line, const std::string& word, ControlDefinition& designed) {
    const std::size_t equals = word.find('=');
    if (equals == std::string::npos)
        readFlag(line, word, designed.control);
    else
        readSetting(line, word.substr(0, equals), word.substr(equals + 1), designed);
}

// Designed defaults of each kind: entry fields are white, everything else shows the form behind it.
void applyDefaults(Control& c) {
    c.tabStop = c.kind == ControlKind::TextBox || c.kind == ControlKind::ComboBox ||
                c.kind == ControlKind::ListBox || c.kind == ControlKind::CommandButton ||
                c.kind == ControlKind::OptionButton || c.kind == ControlKind::Grid ||
                c.kind == ControlKind::TabControl;
    c.opaque = c.kind == ControlKind::TextBox || c.kind == ControlKind::CheckLabel ||
               c.kind == ControlKind::ComboBox || c.kind == ControlKind::ListBox ||
               c.kind == ControlKind::Grid;
    if (c.kind == ControlKind::CheckLabel) c.alignment = 2;
    if (c.kind == ControlKind::Label || c.kind == ControlKind::Line || c.kind == ControlKind::Shape)
        c.borderStyle = c.kind == ControlKind::Label ? 0 : 1;
}

// What a reading has drawn so far, and what the lines still to come take from it.
class DefinitionReader {
public:
    // One line of the text: the form line first, then `in`, `say` and the control lines.
    void read(LineReader& line) {
        const std::string kindWord = line.take("kind");
        if (kindWord == "form") return readForm(line);
        if (!haveForm_) line.fail("the first line must be the form line");
        if (kindWord == "in") return readIn(line);
        if (kindWord == "say") return readSay(line);
        readControl(line, kindNamed(line, kindWord));
    }

    FormDefinition finish() {
        if (!haveForm_) throw DefinitionError("no form line");
        // Every drawing read is kept for the session: without the room the vector grew into.
        definition_.controls.shrink_to_fit();
        return std::move(definition_);
    }

private:
    // form NAME "CAPTION" WIDTH HEIGHT
    void readForm(LineReader& line) {
        if (haveForm_) line.fail("a second form line");
        definition_.name = line.take("form name");
        definition_.caption = line.take("caption");
        definition_.width = line.takeNumber("width");
        definition_.height = line.takeNumber("height");
        haveForm_ = true;
    }

    // in CONTAINER, or in - to end it
    void readIn(LineReader& line) {
        inside_ = line.take("container");
        if (inside_ == "-")
            inside_.clear();
        else if (!containers_.count(inside_))
            line.fail("no container \"" + inside_ + "\" drawn before");
        if (line.more()) line.fail("more than a container after in");
    }

    // say CONTROL "WORDS"
    void readSay(LineReader& line) {
        const std::string target = line.take("control");
        const std::string words = line.take("words");
        if (line.more()) line.fail("more than a control and its words after say");
        ControlDefinition* said = nullptr;
        for (ControlDefinition& d : definition_.controls)
            if (d.control.key() == target) said = &d;
        if (!said) line.fail("no control \"" + target + "\" drawn before");
        said->control.spokenName = words;
    }

    static const Kind& kindNamed(LineReader& line, const std::string& word) {
        for (const Kind& k : kKinds)
            if (word == k.word) return k;
        line.fail("unknown kind \"" + word + "\"");
    }

    // KIND NAME LEFT TOP WIDTH HEIGHT ["CAPTION"] PROPERTIES...
    void readControl(LineReader& line, const Kind& kind) {
        ControlDefinition designed;
        designed.container = inside_;
        Control& c = designed.control;
        c.kind = kind.kind;
        applyDefaults(c);
        readControlName(line, kind, c);
        readPlace(line, c);
        // A word after the numbers that is neither key=value nor a flag is the caption; a caption that
        // looks like either is written caption="...".
        if (line.more() && line.peek().find('=') == std::string::npos && !isFlag(line.peek()))
            c.caption = line.take("caption");
        c.tabIndex = tabOrder_++;
        while (line.more()) readProperty(line, line.take("property"), designed);
        if (c.kind == ControlKind::TextBox && c.text.empty()) c.text = c.caption, c.caption.clear();
        placeInContainer(line, designed);
        containers_[c.key()] = c.kind;
        definition_.controls.push_back(std::move(designed));
    }

    // An unnamed element (`-`) joins its kind's array at the next index.
    void readControlName(LineReader& line, const Kind& kind, Control& c) {
        const std::string name = line.take("name");
        if (name == "-") {
            c.name = kind.unnamed;
            c.index = nextUnnamed_[c.name]++;
        } else {
            readName(line, name, c);
        }
    }

    // A line's two end points; any other control's corner and size.
    static void readPlace(LineReader& line, Control& c) {
        c.left = line.takeNumber("left");
        c.top = line.takeNumber("top");
        if (c.kind == ControlKind::Line) {
            c.x2 = line.takeNumber("second x");
            c.y2 = line.takeNumber("second y");
        } else {
            c.width = line.takeNumber("width");
            c.height = line.takeNumber("height");
        }
    }

    // A control on a tab control stands on one of its pages; in any other container, or none, on none.
    void placeInContainer(LineReader& line, ControlDefinition& designed) const {
        Control& c = designed.control;
        if (designed.container.empty()) {
            c.page = -1;
            return;
        }
        auto holder = containers_.find(designed.container);
        if (holder == containers_.end())
            line.fail("no container \"" + designed.container + "\" drawn before");
        if (holder->second != ControlKind::TabControl)
            c.page = -1;
        else if (c.page < 0)
            line.fail("a control on a tab control needs page=");
    }

    FormDefinition definition_;
    bool haveForm_ = false;
    int tabOrder_ = 0;
    std::map<std::string, int> nextUnnamed_;
    std::string inside_;  // the container of the lines that name none
    std::map<std::string, ControlKind> containers_;
};

// The words of a line, its line break whichever system wrote it taken off.
std::vector<std::string> wordsOfLine(std::string raw, int number) {
    if (!raw.empty() && raw.back() == '\r') raw.pop_back();
    try {
        return text::splitWords(raw);
    } catch (const text::WordsError& e) {
        throw DefinitionError("line " + std::to_string(number) + ": " + e.what());
    }
}

}  // namespace

FormDefinition readDefinition(const std::string& text) {
    DefinitionReader reader;
    std::istringstream in(text);
    std::string raw;
    int number = 0;
    while (std::getline(in, raw)) {
        ++number;
        std::vector<std::string> words = wordsOfLine(raw, number);
        if (words.empty()) continue;
        LineReader line(number, std::move(words));
        reader.read(line);
    }
    return reader.finish();
}

void realizeDefinition(const FormDefinition& definition, Form& form) {
    form.caption = definition.caption;
    form.width = definition.width;
    form.height = definition.height;
    for (const ControlDefinition& designed : definition.controls) {
        Control& made = form.add(designed.control.kind, designed.control.name, designed.control.index);
        Form* owner = made.form;
        made = designed.control;
        made.form = owner;
        made.container = nullptr;
        if (!designed.container.empty()) {
            // A container is named as it was drawn: "Pic1L", or "Frame1(3)" for an element of an array.
            const std::size_t open = designed.container.find('(');
            Control* holder = open == std::string::npos
                                  ? form.find(designed.container)
                                  : form.find(designed.container.substr(0, open),
                                              std::stoi(designed.container.substr(open + 1)));
            if (holder) placeInside(made, *holder, designed.control.page);
        }
    }
}

}  // namespace lw
