// What a view tells a screen reader of its fields, and what it does when the reader acts on one.
#include "model/program.h"
#include "ui/form_view.h"
#include "ui/form_view_accessible.h"
#include "ui/input_bridge.h"
#include "ui/kept_field_names.h"
#include "ui/qt_text.h"

namespace lw::ui {

const FieldName* FormView::fieldNameOf(const Control& control) const {
    if (!form_) return nullptr;
    if (!named_) {
        names_ = keptFieldNamesOf(*form_);
        namedCaptions_.clear();
        for (const auto& [field, name] : names_)
            if (name.box) namedCaptions_[name.box] = name.box->caption;
        named_ = true;
    }
    const auto found = names_.find(&control);
    return found == names_.end() ? nullptr : &found->second;
}

void FormView::renameFields() {
    named_ = false;
    if (screenReaderListens()) nameFields();
}

void FormView::nameFields() {
    for (auto it = editors_.cbegin(); it != editors_.cend(); ++it)
        if (const FieldName* named = fieldNameOf(*it.key()); named && !named->text.empty())
            it.value()->setAccessibleName(toQString(named->text));
}

void FormView::clickFromAssistant(Control& control) {
    if (form_ && hasProgram() && form_->desktop()) forwardInput([&] { form_->desktop()->click(control); });
}

void FormView::chooseFromAssistant(Control& control, const std::string& entry) {
    if (form_ && hasProgram() && form_->desktop())
        forwardInput([&] { form_->desktop()->choose(control, entry); });
}

}  // namespace lw::ui
