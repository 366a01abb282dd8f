// The checks of a script: `expect` and the values of controls, forms and globals it compares.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "model/containers.h"
#include "model/program.h"
#include "output/form_print.h"
#include "script/script_runner.h"
#include "script/script_words.h"
#include "shell/form_registry.h"
#include "shell/frame_form.h"
#include "store/inf_store.h"
#include "text/case.h"

namespace lw::script {

void ScriptRunner::check(const std::vector<std::string>& words) {
    need(words, 2, "expect ...");
    const std::string& what = words[1];
    auto contains = [](const std::string& hay, const std::string& part) {
        return hay.find(part) != std::string::npos;
    };

    if (what == "quit") return expectThat(session_.ended, session_.ended ? "ended" : "still running");
    if (what == "clipboard")
        return expectThat(session_.clipboardPicture != nullptr,
                          session_.clipboardPicture ? "a picture" : "no picture");
    if (what == "clipboard-size") {
        need(words, 3, "expect clipboard-size WIDTHxHEIGHT");
        const std::string size = session_.clipboardPicture
                                     ? std::to_string(session_.clipboardPicture->width()) + "x" +
                                           std::to_string(session_.clipboardPicture->height())
                                     : "no picture";
        return expectThat(size == words[2], size);
    }
    if (what == "clipboard-pixel" || what == "printed-pixel") {
        need(words, 5, "expect clipboard-pixel|printed-pixel X Y \"#RRGGBB\"");
        const std::shared_ptr<const headless::FormPicture>& picture =
            what == "clipboard-pixel" ? session_.clipboardPicture : session_.printedPicture;
        const int x = std::atoi(words[2].c_str());
        const int y = std::atoi(words[3].c_str());
        if (!picture) return expectThat(false, "no picture");
        if (!picture->contains(x, y)) return expectThat(false, "a point outside the picture");
        const std::optional<std::string> colour = picture->colourAt(x, y);
        if (!colour) return expectThat(false, "a picture whose pixels this runner does not draw");
        return expectThat(*colour == text::toUpper(words[4]), *colour);
    }
    if (what == "printed") {
        need(words, 3, "expect printed N");
        return expectThat(std::to_string(session_.printedPages) == words[2],
                          std::to_string(session_.printedPages) + " pages");
    }
    if (what == "exists" || what == "missing") {
        need(words, 3, "expect exists|missing PATH");
        std::error_code ec;
        bool there = std::filesystem::exists(path(words[2]), ec);
        return expectThat(there == (what == "exists"), there ? "it exists" : "it is missing");
    }
    if (what == "file") {
        need(words, 4, "expect file PATH \"CONTENT\"");
        std::ifstream in(path(words[2]), std::ios::binary);
        if (!in) return expectThat(false, "no such file");
        std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
        std::string shown = utf8(bytes);
        return expectThat(shown == words[3], "\"" + shown + "\"");
    }
    if (what == "ini") {
        need(words, 6, "expect ini PATH SECTION KEY \"VALUE\"");
        std::string value = utf8(store::ReadINF(codePage(words[3]), codePage(words[4]), "", path(words[2])));
        return expectThat(value == words[5], "\"" + value + "\"");
    }
    if (what == "any-message") {
        need(words, 3, "expect any-message \"PART\"");
        bool held = false;
        for (std::size_t i = session_.boxesSeen; i < session_.boxes.size(); ++i)
            held = held || contains(session_.boxes[i].text, words[2]);
        std::size_t shown = session_.boxes.size() - session_.boxesSeen;
        session_.boxesSeen = session_.boxes.size();
        return expectThat(held, std::to_string(shown) + " boxes, none with that text");
    }
    if (what == "message" || what == "no-message") {
        bool shownSince = session_.boxes.size() > session_.boxesSeen;
        std::string last = shownSince ? escapeLineEnds(session_.boxes.back().text) : "";
        session_.boxesSeen = session_.boxes.size();
        if (what == "no-message") return expectThat(!shownSince, "a box \"" + last + "\"");
        need(words, 3, "expect message \"PART\"");
        return expectThat(shownSince && contains(session_.boxes.back().text, words[2]),
                          shownSince ? "\"" + last + "\"" : "no box");
    }
    if (what == "title") {
        need(words, 3, "expect title \"PART\"");
        std::string title = session_.lastBox ? session_.lastBox->title : "";
        return expectThat(session_.lastBox && contains(title, words[2]),
                          session_.lastBox ? "\"" + title + "\"" : "no box");
    }
    if (what == "dialog") {
        need(words, 3, "expect dialog \"PART\"");
        std::string dialog = session_.lastDialog.value_or("");
        return expectThat(session_.lastDialog && contains(dialog, words[2]),
                          session_.lastDialog ? "\"" + dialog + "\"" : "no dialog");
    }
    if (what == "k1list") {
        need(words, 3, "expect k1list \"PART\"");
        if (!session_.lastK1List) return expectThat(false, "no list");
        const headless::ShownK1List& list = *session_.lastK1List;
        bool held = contains(list.caption, words[2]);
        for (const std::string& row : list.rows) held = held || contains(row, words[2]);
        return expectThat(held, "\"" + list.caption + "\" with " + std::to_string(list.rows.size()) +
                                    " rows, none with that text");
    }
    if (what == "report" || what == "no-report") {
        auto shown = [](const headless::ShownReport& r) {
            return utf8(r.module) + " " + utf8(r.number) + " " + utf8(r.description);
        };
        if (what == "report") need(words, 3, "expect report \"PART\"");
        const std::size_t seen = session_.reportsSeen;
        session_.reportsSeen = session_.reports.size();
        if (what == "no-report") {
            std::string since;
            for (std::size_t i = seen; i < session_.reports.size(); ++i)
                since += (since.empty() ? "" : "; ") + shown(session_.reports[i]);
            return expectThat(since.empty(), "a report \"" + since + "\"");
        }
        // Any report since the start may hold the text, not only those since the last check.
        if (session_.reports.empty()) return expectThat(false, "no report");
        std::string all;
        for (const headless::ShownReport& r : session_.reports) {
            if (contains(utf8(r.module), words[2]) || contains(utf8(r.number), words[2]) ||
                contains(utf8(r.description), words[2]))
                return expectThat(true, "");
            all += (all.empty() ? "" : "; ") + shown(r);
        }
        return expectThat(false, "\"" + all + "\"");
    }
    if (!program_) throw ScriptError("the program is not running");
    if (what == "menu") {
        need(words, 4, "expect menu ITEM.Enabled|Visible|Caption VALUE");
        auto dot = words[2].find('.');
        if (dot == std::string::npos) throw ScriptError("expect menu needs ITEM.PROP");
        auto* frame = program_->desktop.frame();
        MenuItem* item = frame ? frame->findMenu(words[2].substr(0, dot)) : nullptr;
        if (!item) throw ScriptError("no menu item " + words[2].substr(0, dot));
        std::string prop = words[2].substr(dot + 1);
        std::string value = text::equalsNoCase(prop, "Enabled")   ? flag(item->enabled)
                            : text::equalsNoCase(prop, "Visible") ? flag(item->visible)
                            : text::equalsNoCase(prop, "Caption")
                                ? utf8(item->caption)
                                : throw ScriptError("unknown menu property " + prop);
        return expectThat(value == words[3], "\"" + value + "\"");
    }
    if (what == "printer") {
        need(words, 3, "expect printer \"NAME\"");
        const std::string printer = utf8(currentPrinter());
        return expectThat(printer == words[2], "\"" + printer + "\"");
    }
    if (what == "form") {
        need(words, 3, "expect form NAME");
        Form* active = program_->desktop.activeChild();
        std::string name = active ? active->name() : "none";
        return expectThat(text::equalsNoCase(name, words[2]), name);
    }
    if (what == "focus") {
        need(words, 3, "expect focus CTL");
        Control& wanted = control(words[2]);
        Control* focused = program_->desktop.focus();
        return expectThat(focused == &wanted, focused ? focused->key() : "nothing");
    }
    if (what == "global") {
        need(words, 4, "expect global NAME VALUE");
        std::string value = global(words[2]);
        return expectThat(value == words[3], "\"" + value + "\"");
    }
    need(words, 3, "expect CTL \"TEXT\" or expect CTL.PROP VALUE");
    ControlReference ref = parseReference(what);
    if (ref.index == kNoIndex && !ref.property.empty() && isFormName(ref.name)) {
        std::string value = formProperty(ref.name, ref.property);
        return expectThat(value == words[2], "\"" + value + "\"");
    }
    Control& c = control(what);
    std::string value = ref.property.empty() ? utf8(c.shownText()) : property(c, ref.property);
    bool held = value == words[2];
    if (!held &&
        (text::equalsNoCase(ref.property, "BackColor") || text::equalsNoCase(ref.property, "ForeColor"))) {
        char* end = nullptr;
        unsigned long wanted = std::strtoul(words[2].c_str(), &end, 0);
        held = end && *end == '\0' && std::to_string(wanted) == value;
    }
    expectThat(held, "\"" + value + "\"");
}

std::string ScriptRunner::property(const Control& c, const std::string& name) const {
    auto is = [&](const char* p) { return text::equalsNoCase(name, p); };
    if (is("Text")) return utf8(c.text);
    if (is("Caption")) return utf8(c.caption);
    if (is("Tag")) return utf8(c.tag);
    if (is("ToolTipText")) return utf8(c.toolTipText);
    if (is("BackColor")) return std::to_string(c.backColor);
    if (is("ForeColor")) return std::to_string(c.foreColor);
    if (is("Visible")) return flag(c.visible);
    if (is("Enabled")) return flag(c.enabled);
    if (is("Locked")) return flag(c.locked);
    if (is("TabStop")) return flag(c.tabStop);
    if (is("TabIndex")) return std::to_string(c.tabIndex);
    if (is("Alignment")) return std::to_string(c.alignment);
    if (is("MaxLength")) return std::to_string(c.maxLength);
    if (is("SelStart")) return std::to_string(c.selStart());
    if (is("SelLength")) return std::to_string(c.selLength());
    if (is("Left")) return std::to_string(c.left);
    if (is("Top")) return std::to_string(c.top);
    if (is("Width")) return std::to_string(c.width);
    if (is("Height")) return std::to_string(c.height);
    if (is("FontName")) return utf8(c.fontName);
    if (is("FontSize")) return number(c.fontSize);
    if (is("FontBold")) return flag(c.fontBold);
    if (is("Value")) return flag(c.value);
    if (is("ListIndex")) return std::to_string(c.listIndex);
    // The picture's file name alone, as it stands on disk; "" when the control shows none.
    if (is("Picture")) return utf8(c.picture.substr(c.picture.find_last_of("/\\") + 1));
    if (is("Tab") && c.kind == ControlKind::TabControl) return std::to_string(tabOf(c));
    throw ScriptError("unknown property " + name);
}

bool ScriptRunner::isFormName(const std::string& name) const {
    return program_->desktop.findForm(name) || hasForm(name) || text::equalsNoCase(name, "F0_MDI");
}

// A form that is not open has only its visibility to show.
std::string ScriptRunner::formProperty(const std::string& formName, const std::string& name) const {
    auto is = [&](const char* p) { return text::equalsNoCase(name, p); };
    const Form* form = program_->desktop.findForm(formName);
    if (is("Visible")) return flag(form && form->isLoaded());
    if (!form) throw ScriptError("the form " + formName + " is not open");
    if (is("Caption")) return utf8(form->caption);
    if (is("Left")) return std::to_string(form->left);
    if (is("Top")) return std::to_string(form->top);
    if (is("Width")) return std::to_string(form->width);
    if (is("Height")) return std::to_string(form->height);
    throw ScriptError("unknown form property " + name);
}

std::string ScriptRunner::global(const std::string& name) const {
    const Globals& g = program_->g;
    auto is = [&](const char* n) { return text::equalsNoCase(name, n); };
    if (text::startsWithNoCase(name, "TaxYears(") && name.back() == ')') {
        std::string digits = name.substr(9, name.size() - 10);
        if (digits.size() != 1 || digits[0] < '0' || digits[0] > '3')
            throw ScriptError("bad index in " + name);
        return utf8(g.TaxYears[digits[0] - '0']);
    }
    if (text::startsWithNoCase(name, "LegendColors(") && name.back() == ')') {
        std::string digits = name.substr(13, name.size() - 14);
        if (digits.size() != 1 || !std::isdigit(static_cast<unsigned char>(digits[0])))
            throw ScriptError("bad index in " + name);
        return std::to_string(g.LegendColors[digits[0] - '0']);
    }
    if (is("FormKey")) return utf8(g.FormKey);
    if (is("CurrentFileName")) return utf8(g.CurrentFileName);
    if (is("TaxYearIndex")) return std::to_string(g.TaxYearIndex);
    if (is("SSRate")) return utf8(g.SSRate);
    if (is("SSMax")) return utf8(g.SSMax);
    if (is("MCInitRate")) return utf8(g.MCInitRate);
    if (is("MCChgRateAfter")) return utf8(g.MCChgRateAfter);
    if (is("MCRateAfter")) return utf8(g.MCRateAfter);
    if (is("MCPartBPremium")) return utf8(g.MCPartBPremium);
    if (is("MCPartBIncome")) return utf8(g.MCPartBIncome);
    if (is("FilingStatus")) return utf8(g.FilingStatus);
    if (is("LastFieldKey")) return utf8(g.LastFieldKey);
    if (is("UserNameUC")) return utf8(g.UserNameUC);
    if (is("ComputerNameUC")) return utf8(g.ComputerNameUC);
    if (is("UserInfFile")) return utf8(g.UserInfFile);
    if (is("FormsInfFile")) return utf8(g.FormsInfFile);
    if (is("SSMCInfFile")) return utf8(g.SSMCInfFile);
    if (is("K1HelpInfFile")) return utf8(g.K1HelpInfFile);
    if (is("PicturesFolder")) return utf8(g.PicturesFolder);
    if (is("UserGuideFile")) return utf8(g.UserGuideFile);
    if (is("FileExtension")) return utf8(g.FileExtension);
    if (is("FileFilter")) {
        std::string shown = g.FileFilter;
        for (char& c : shown)
            if (c == '\0') c = '|';
        return utf8(shown);
    }
    if (is("LastOpenFolder")) return utf8(g.LastOpenFolder);
    if (is("LastSaveFolder")) return utf8(g.LastSaveFolder);
    if (is("bDebug")) return flag(g.bDebug);
    if (is("bStartup")) return flag(g.bStartup);
    if (is("bQuitting")) return flag(g.bQuitting);
    if (is("CommandWords")) return utf8(g.CommandWords);
    if (is("FormRecord")) return utf8(g.FormRecord);
    if (is("SaveResult")) return utf8(g.SaveResult);
    if (is("CurrentForm")) return g.CurrentForm ? g.CurrentForm->name() : "";
    if (auto* frame = dynamic_cast<FrameForm*>(program_->desktop.frame())) {
        if (is("VersionMajor")) return frame->VersionMajor;
        if (is("VersionFull")) return frame->VersionFull;
        if (is("TaxFormsFolder")) return utf8(frame->TaxFormsFolder);
        if (is("IconFile")) return utf8(frame->IconFile);
        if (is("DevAppFolder")) return utf8(frame->DevAppFolder);
        if (is("DevSharedFolder")) return utf8(frame->DevSharedFolder);
        if (is("FrameCaption")) return utf8(frame->caption);
        if (is("bTaskbarHidden")) return flag(frame->bTaskbarHidden);
    }
    throw ScriptError("unknown global " + name);
}

}  // namespace lw::script
