// The output helpers of a script: show, dump, snapshot, and the clipboard and printer files.
#include <cstdlib>

#include "headless/form_pictures.h"
#include "model/program.h"
#include "script/script_runner.h"
#include "script/script_words.h"

namespace lw::script {

void ScriptRunner::showValue(const std::vector<std::string>& words) {
    const std::string& command = words[0];
    if (command == "print-to") {
        need(words, 2, "print-to PATH");
        session_.printTo = path(words[1]);
        return;
    }
    if (command == "save-clipboard") {
        need(words, 2, "save-clipboard PATH");
        if (!session_.clipboardPicture) throw ScriptError("the clipboard holds no picture");
        if (!session_.clipboardPicture->savePng(path(words[1])))
            throw ScriptError("cannot write " + words[1]);
        return;
    }
    requireRunning(command);
    if (command == "snapshot") {
        need(words, 2, "snapshot PATH [ZOOM]");
        double zoom = words.size() > 2 ? std::atof(words[2].c_str()) : 1.0;
        if (zoom <= 0 || zoom > 8) throw ScriptError("the zoom must lie between 0 and 8");
        if (!headless::drawForm(inputForm(), zoom)->savePng(path(words[1])))
            throw ScriptError("cannot write " + words[1]);
        return;
    }
    if (command == "dump") {
        Form& form = inputForm();
        out_ << "form " << form.name() << " \"" << utf8(form.caption) << "\"\n";
        for (const auto& c : form.controls()) {
            out_ << "  " << c->key() << " " << controlKindName(c->kind) << " \"" << utf8(c->shownText())
                 << "\"";
            if (!c->tag.empty()) out_ << " tag \"" << utf8(c->tag) << "\"";
            out_ << "\n";
        }
        return;
    }
    need(words, 2, "show CTL[.PROP]");
    ControlReference ref = parseReference(words[1]);
    if (ref.index == kNoIndex && !ref.property.empty() && isFormName(ref.name)) {
        out_ << words[1] << " = \"" << formProperty(ref.name, ref.property) << "\"\n";
        return;
    }
    Control& c = control(words[1]);
    out_ << words[1] << " = \"" << (ref.property.empty() ? utf8(c.shownText()) : property(c, ref.property))
         << "\"\n";
}

}  // namespace lw::script
