// Naming a document from its content, and writing it: a new file through the save dialog, an existing
// one through SaveForm.
#include "documents/saving.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "catalogue/form_info.h"
#include "diagnostics/error_tail.h"
#include "diagnostics/message_box.h"
#include "documents/file_dialogs.h"
#include "documents/record.h"
#include "documents/save_form.h"
#include "fields/control_setup.h"
#include "model/desktop.h"
#include "model/edition_settings.h"
#include "model/open_document.h"
#include "model/program_parts.h"
#include "model/user_choices.h"
#include "people/name_format.h"
#include "shell/catalogue_form.h"
#include "shell/paths.h"
#include "text/case.h"
#include "text/cp1252.h"
#include "text/number.h"

namespace lw {

namespace {

const char* const kNameLabel = "M4_FileCode:Build_FileName";
const char* const kSaveLabel = "M4_FileCode:Save_File";
// The first template, which the configuration form chooses when the operator has chosen none.
const char* const kFirstTemplate = "<LAST>_<FIRST>_<FORM>_<OTHER>_<SEQ>";

// CurrentForm outlives the form it names: only a form still on the desktop counts.
Form* loadedCurrentForm(const OpenDocument& document, const Desktop& desktop) {
    Form* current = document.currentForm;
    if (!current) return nullptr;
    const std::vector<Form*> forms = desktop.forms();
    return std::find(forms.begin(), forms.end(), current) != forms.end() ? current : nullptr;
}

// Every occurrence, in any case.
std::string replaceNoCase(const std::string& text, const std::string& what, const std::string& with) {
    if (what.empty()) return text;
    std::string out;
    std::size_t from = 0;
    for (std::size_t at = text::findNoCase(text, what); at != std::string::npos;
         at = text::findNoCase(text, what, from)) {
        out += text.substr(from, at - from) + with;
        from = at + what.size();
    }
    return out + text.substr(from);
}

std::string fieldText(Form& form, int index) { return form.at("Text1", index).text; }

// The form's own edit of the field being left; a field that does not stand is named anyway, as typed.
void validateActiveControl(Form& form, Desktop& desktop) {
    Control* active = form.activeControl();
    if (!active) return;
    bool cancel = false;
    desktop.dispatch([&] { form.onValidate(*active, cancel); });
}

std::string piece(const std::vector<std::string>& pieces, std::size_t i) {
    return i < pieces.size() ? pieces[i] : std::string();
}

}  // namespace

std::string safeFileName(const std::string& name) {
    std::string safe = name;
    for (char& c : safe) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x20 || byte == 0x7F || std::string_view("/\\:*?\"<>|").find(c) != std::string_view::npos)
            c = '-';
    }
    return safe;
}

namespace {

std::optional<std::string> buildFileName(const ProgramParts& parts, int& focusIndex) {
    OpenDocument& document = parts.document;
    const CatalogueValues& catalogue = document.catalogue;
    Form* found = loadedCurrentForm(document, parts.desktop);
    if (!found) raiseDataError(800, "You must open an existing form or create a new form before continuing.");
    Form& form = *found;
    const std::string formKey = document.formKey;
    // A form outside the catalogue has the common rules.
    auto* rules = dynamic_cast<CatalogueForm*>(&form);

    if (const std::optional<std::string> own = rules ? rules->ownFileName() : std::nullopt) {
        const std::optional<std::string> record = buildRecord(document.currentForm, document);
        // What FormRecord reads once a form that names itself has refused to make its line.
        document.formRecord = record.value_or("Error " + formKey);
        if (!record) return std::nullopt;
        return safeFileName(*own);
    }

    if (rules && !rules->requiredFieldsFilled(focusIndex)) return std::nullopt;

    std::string other;
    if (text::isNumeric(catalogue.otherInfo)) {
        other = fieldText(form, static_cast<int>(*text::toDouble(catalogue.otherInfo)));
        other = other.substr(0, other.find('\r'));
    }

    focusIndex = 0;
    validateActiveControl(form, parts.desktop);
    const std::optional<std::string> record = buildRecord(document.currentForm, document);
    document.formRecord = record.value_or("");
    if (!record) return std::nullopt;

    std::string name;
    if (const std::optional<int> nameIndex = firstFieldIndex(catalogue.nameAddrIndex)) {
        name = fieldText(form, *nameIndex);
        if (other == name) other.clear();
    }
    if (name.empty()) raiseDataError(800, "Name is MANDATORY", kNameLabel);

    const std::string& chosenTemplate = parts.choices.fileNameFormat;
    std::string fileName =
        chosenTemplate.empty() ? kFirstTemplate + parts.edition.fileExtension : chosenTemplate;
    fileName = replaceNoCase(fileName, "<FORM>", formKey);

    if (const std::optional<int> numberIndex = firstFieldIndex(catalogue.ssnIndex)) {
        if (fieldText(form, *numberIndex).empty()) {
            focusIndex = *numberIndex;
            raiseDataError(801, "Social Security/Taxpayer ID Number is MANDATORY", kNameLabel);
        }
    }

    // The first-name-first templates take the whole cleaned line, the others LAST,FIRST.
    const std::vector<std::string> names =
        text::split(formatTaxpayerName(name, chosenTemplate), std::string(1, text::kFieldSeparator));
    fileName = replaceNoCase(fileName, "<LAST>_<FIRST>", piece(names, 1));
    fileName = replaceNoCase(fileName, "<FIRST>_<LAST>", piece(names, 0));

    const OtherInFileName otherRule = rules ? rules->otherInFileName() : OtherInFileName::AsTyped;
    if (other.empty() || otherRule == OtherInFileName::Omitted) {
        fileName = replaceNoCase(fileName, "<OTHER>_", "");
    } else if (otherRule == OtherInFileName::LastName) {
        const std::vector<std::string> others =
            text::split(formatTaxpayerName(other, chosenTemplate), std::string(1, text::kFieldSeparator));
        fileName = replaceNoCase(fileName, "<OTHER>", piece(others, 1));
    } else {
        fileName = replaceNoCase(fileName, "<OTHER>", other);
    }

    fileName = replaceNoCase(fileName, "<SEQ>", "000");
    while (fileName.find("__") != std::string::npos) fileName = text::replaceAll(fileName, "__", "_");
    // Names and employers come from the operator: none may point into another folder.
    return safeFileName(fileName);
}

void saveFile(const ProgramParts& parts, int& focusIndex) {
    const std::optional<std::string> proposed = proposeFileName(parts, focusIndex);
    if (!proposed || proposed->empty()) return;

    OpenDocument& document = parts.document;
    const UserInfSection userInf = userInfSectionOf(parts.edition, parts.process);
    const std::string& extension = parts.edition.fileExtension;
    const std::string name = replaceNoCase(*proposed, extension, "") + extension;

    std::string path = document.currentFileName;
    if (path.empty()) {
        // A remembered folder that has gone would send the dialog astray.
        verifyRememberedFolder(FileDialogMode::Save, userInf);
        // The path chosen is not kept: the next Save of a new form asks again.
        const std::optional<std::string> chosen = chooseFileToOpenOrSave(parts, FileDialogMode::Save, name);
        if (!chosen) return;
        path = *chosen;
    }

    if (fileExists(path)) {
        const SaveOutcome outcome = SaveForm::run(parts, path);
        // Kept on the document for the runner, which reads how the last such form ended.
        document.lastSaveOutcome = outcome;
        if (outcome != SaveOutcome::WriteSamePath) return;
    }

    if (!writeRecord(path, document.formRecord, kSaveLabel, userInf, parts.desktop)) return;

    if (auto* saved = dynamic_cast<CatalogueForm*>(loadedCurrentForm(document, parts.desktop)))
        saved->afterSaved();

    if (Form* form = loadedCurrentForm(document, parts.desktop)) {
        if (Control* status = form->find("labelMisc")) {
            status->foreColor = 255;
            status->caption = path;
        }
    }
}

}  // namespace

std::optional<std::string> proposeFileName(const ProgramParts& parts, int& focusIndex) {
    return runGuardedOr<std::optional<std::string>>(kNameLabel, std::nullopt,
                                                    [&] { return buildFileName(parts, focusIndex); });
}

void saveDataFile(const ProgramParts& parts) {
    int focusIndex = 0;
    runGuarded(kSaveLabel, [&] { saveFile(parts, focusIndex); });
    // Whatever happened above, the operator goes on in the field the naming chose.
    Form* form = loadedCurrentForm(parts.document, parts.desktop);
    if (!form) return;
    runGuarded(kSaveLabel, [&] {
        if (Control* field = form->find("Text1", focusIndex)) {
            setUpControl(*field, false, parts.document, parts.edition.legendColors);
            form->setFocus(*field);
        }
    });
}

}  // namespace lw
