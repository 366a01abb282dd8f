// Building the data line of the form on the screen, and the Open command around the reading of one.
#include "documents/record.h"

#include <vector>

#include "diagnostics/error_tail.h"
#include "documents/file_dialogs.h"
#include "model/app_error.h"
#include "model/program.h"
#include "shell/catalogue_form.h"
#include "shell/form_lifecycle.h"
#include "store/record_line.h"
#include "text/case.h"
#include "text/cp1252.h"

namespace lw {

namespace {

constexpr const char* kBuildLabel = "M4_FileCode:Build_Record";
constexpr const char* kOpenLabel = "M4_FileCode:Open_File";
constexpr const char* kCardsError = "Error SS_ITIN";
const std::string kCancel(1, text::kFieldSeparator);

Globals& g() { return program().g; }

bool isCheckLabel(const Control& c) {
    return (c.kind == ControlKind::CheckLabel || c.kind == ControlKind::Label) &&
           text::equalsNoCase(c.name, "Check");
}

std::vector<store::RecordField> filledControls(const Form& form) {
    std::vector<store::RecordField> fields;
    for (const auto& owned : form.controls()) {
        const Control& c = *owned;
        std::optional<std::string> key;
        const std::string* value = nullptr;
        if (c.isTextBox() && !c.text.empty()) {
            key = store::recordKey(store::RecordSlot::TextBox, c.name, c.index);
            value = &c.text;
        } else if (isCheckLabel(c) && !c.caption.empty()) {
            key = store::recordKey(store::RecordSlot::Check, c.name, c.index);
            value = &c.caption;
        }
        // A control without a key of its own is left out, as a fault of one control is ignored.
        if (key) fields.push_back({*key, *value});
    }
    return fields;
}

// The form just read has its say once the Open command is done with it.
void afterFileOpened() {
    auto* form = dynamic_cast<CatalogueForm*>(g().CurrentForm);
    if (form && form->isLoaded()) form->afterFileOpened();
}

}  // namespace

std::string buildRecord() {
    std::string line;
    runGuarded(kBuildLabel, [&] {
        Form* form = g().CurrentForm;
        if (!form) throw AppError(err::kObjectRequired, "Object required");
        std::string year;
        if (formHasTaxYear()) year = form->at("TaxYear", 0).caption + form->at("TaxYear", 1).caption;
        if (auto* rules = dynamic_cast<CatalogueForm*>(form)) {
            // What a refused check leaves behind (only the cards refuse).
            line = kCardsError;
            rules->checkBeforeRecord();
            line.clear();
        }
        std::vector<store::RecordField> fields = filledControls(*form);
        if (auto* pictures = dynamic_cast<ChosenPictures*>(form)) {
            fields.push_back({"PIC1", std::to_string(pictures->chosenPicture(1))});
            fields.push_back({"PIC2", std::to_string(pictures->chosenPicture(2))});
        }
        line = store::buildRecordLine(g().RecordPrefix, year, fields);
    });
    return line;
}

void openDataFile() {
    runGuarded(kOpenLabel, [] {
        try {
            if (Form* current = g().CurrentForm; current && current->isLoaded() && current->isChild)
                current->unload();
        } catch (const ProgramEnded&) {
            throw;
        } catch (...) {
            // The form on the screen goes whatever its unloading says.
        }
        // A remembered folder that has gone would send the dialog astray.
        verifyRememberedFolder("OPEN");
        g().CurrentFileName = OpenOrSaveFile(0, "");
        if (g().CurrentFileName == kCancel) return;
        readDataFile();
        afterFileOpened();
        program().ui.refresh();
    });
}

}  // namespace lw
