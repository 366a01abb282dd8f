// The values a script reads, to check them or to show them: the properties of controls and forms.
#include "model/containers.h"
#include "model/program.h"
#include "script/script_runner.h"
#include "script/script_words.h"
#include "shell/form_registry.h"
#include "text/case.h"

namespace lw::script {

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

}  // namespace lw::script
