// Building the data line of the form on the screen, and the Open command around the reading of one.
#include "documents/record.h"

#include <vector>

#include "catalogue/catalogue_table.h"
#include "diagnostics/error_tail.h"
#include "documents/file_dialogs.h"
#include "model/app_error.h"
#include "model/open_document.h"
#include "model/ports.h"
#include "model/program_parts.h"
#include "shell/catalogue_form.h"
#include "store/record_line.h"
#include "text/case.h"
#include "text/cp1252.h"

namespace lw {

namespace {

constexpr const char* kBuildLabel = "M4_FileCode:Build_Record";
constexpr const char* kOpenLabel = "M4_FileCode:Open_File";
// What a cancelled open leaves as the file name: the dialog's cancel mark.
const std::string kCancelMark(1, text::kFieldSeparator);

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
void afterFileOpened(const OpenDocument& document) {
    auto* form = dynamic_cast<CatalogueForm*>(document.currentForm);
    if (form && form->isLoaded()) form->afterFileOpened();
}

}  // namespace

std::optional<std::string> buildRecord(Form* form, const OpenDocument& document) {
    std::optional<std::string> line;
    runGuarded(kBuildLabel, [&] {
        if (!form) throw AppError(err::kObjectRequired, "Object required");
        std::string year;
        if (formKeyHasTaxYear(document.formKey))
            year = form->at("TaxYear", 0).caption + form->at("TaxYear", 1).caption;
        if (auto* rules = dynamic_cast<CatalogueForm*>(form)) rules->checkBeforeRecord();
        std::vector<store::RecordField> fields = filledControls(*form);
        if (auto* pictures = dynamic_cast<ChosenPictures*>(form)) {
            fields.push_back({"PIC1", std::to_string(pictures->chosenPicture(1))});
            fields.push_back({"PIC2", std::to_string(pictures->chosenPicture(2))});
        }
        line = store::buildRecordLine(document.catalogue.recordPrefix, year, fields);
    });
    return line;
}

void openDataFile(const ProgramParts& parts) {
    runGuarded(kOpenLabel, [&] {
        OpenDocument& document = parts.document;
        try {
            if (Form* current = document.currentForm; current && current->isLoaded() && current->isChild)
                current->unload();
        } catch (const ProgramEnded&) {
            throw;
        } catch (...) {
            // The form on the screen goes whatever its unloading says.
        }
        // A remembered folder that has gone would send the dialog astray.
        verifyRememberedFolder(FileDialogMode::Open, userInfSectionOf(parts.edition, parts.process));
        const std::optional<std::string> chosen = chooseFileToOpenOrSave(parts, FileDialogMode::Open, "");
        // The mark stands as the file name until the next open or save chooses one.
        document.currentFileName = chosen.value_or(kCancelMark);
        if (!chosen) return;
        readDataFile(*chosen, parts);
        afterFileOpened(document);
        parts.ui.refresh();
    });
}

}  // namespace lw
