// Reading a data file back into the form that its first field names.
#include <filesystem>
#include <string_view>

#include "catalogue/form_info.h"
#include "diagnostics/error_tail.h"
#include "documents/record.h"
#include "fields/edit_date.h"
#include "model/app_error.h"
#include "model/desktop.h"
#include "model/edition_settings.h"
#include "model/open_document.h"
#include "model/program_parts.h"
#include "shell/catalogue_form.h"
#include "shell/form_lifecycle.h"
#include "shell/paths.h"
#include "store/atomic_file.h"
#include "store/file_bytes.h"
#include "store/record_line.h"
#include "text/case.h"
#include "text/cp1252.h"

namespace lw {

namespace {

constexpr const char* kReadLabel = "M4_FileCode:Read_File";
constexpr int kNotARecord = 850;
constexpr int kNoSuchForm = 851;
constexpr int kFileAccessError = 75;
// A data file is one line of a few kilobytes; anything this large is something else.
constexpr std::uintmax_t kLargestRecordFile = 1024 * 1024;

[[noreturn]] void refuse(const std::string& path, const std::string& why) {
    throw AppError(kNotARecord, "The file " + path + " is not a form file: " + why + " Nothing was opened.",
                   kReadLabel);
}

// Typed text holds no control code below the blank but the tab; a line break is stored as its own mark.
bool holdsControlBytes(std::string_view line) {
    for (char c : line) {
        const auto b = static_cast<unsigned char>(c);
        if (b < 0x20 && b != '\t') return true;
    }
    return false;
}

// The first line of a data file; a file that cannot be one is refused before anything changes.
std::string readRecordLine(const std::string& path) {
    std::error_code ec;
    if (!std::filesystem::is_regular_file(path, ec))
        throw AppError(err::kFileNotFound, "File not found: " + path, kReadLabel);
    const std::uintmax_t size = std::filesystem::file_size(path, ec);
    if (!ec && size > kLargestRecordFile) refuse(path, "it is larger than 1 MB.");
    std::string bytes;
    if (!store::readFileBytes(path, bytes))
        throw AppError(kFileAccessError, "Path/File access error: " + path + " cannot be read", kReadLabel);
    if (bytes.size() > kLargestRecordFile) refuse(path, "it is larger than 1 MB.");
    if (bytes.empty()) refuse(path, "it is empty.");
    std::string_view line = store::firstRecordLine(bytes);
    if (bytes.find('\0') != std::string::npos || holdsControlBytes(line))
        refuse(path, "it holds binary data.");
    if (line.find(text::kFieldSeparator) == std::string_view::npos)
        refuse(path, std::string("its first line has no field separator (") + text::kFieldSeparator + ").");
    return std::string(line);
}

// The line of an older release, brought up to date on disk so that the next open reads it as it is.
void rewriteRecordFile(const std::string& path, const std::string& line) {
    std::string error;
    if (!store::writeFileAtomically(path, line + "\r\n", error))
        throw AppError(kFileAccessError, "Path/File access error: " + error, kReadLabel);
}

void unloadEveryFormButTheFrame(Desktop& desktop) {
    for (Form* open : desktop.forms()) {
        if (open != desktop.frame() && open->isLoaded()) desktop.unload(*open);
    }
}

Form& openFormOf(const std::string& field0, const std::string& path, const ProgramParts& parts) {
    const std::string formName =
        readFormInfo(store::catalogueKeyOf(field0), "FormName", parts.edition.formsInfFile);
    unloadEveryFormButTheFrame(parts.desktop);
    if (formName.empty())
        throw AppError(kNoSuchForm,
                       "The file " + path + " is for \"" + field0 + "\", a form this program does not know.",
                       kReadLabel);
    Form* form = openCatalogueForm(formName);
    if (!form)
        throw AppError(kNoSuchForm, "The form " + formName + " of the file " + path + " cannot be opened.",
                       kReadLabel);
    parts.document.currentForm = form;
    return *form;
}

// The value names the file "P", the value as written, "GS.jpg": only the sixteen portraits are such
// files, so "3.5" or "07" name none. A value that names no portrait shows none and is kept as 0, and no
// file outside the pictures folder is ever read because of a data file.
int portraitNamedBy(const std::string& value) {
    for (int number = 1; number <= kPortraits; ++number)
        if (value == std::to_string(number)) return number;
    return 0;
}

void showPicture(Form& form, const char* pictureBox, int which, const std::string& value,
                 const std::string& picturesFolder) {
    const int number = portraitNamedBy(value);
    form.at(pictureBox).picture = number > 0 ? portraitFile(picturesFolder, number) : std::string();
    if (auto* pictures = dynamic_cast<ChosenPictures*>(&form)) pictures->chosenPicture(which) = number;
}

void setField(Form& form, const std::string& field0, const store::RecordField& field,
              const std::string& picturesFolder) {
    const std::optional<int> index = store::recordKeyIndex(field.key);
    if (!index) return;
    if (auto* rules = dynamic_cast<CatalogueForm*>(&form);
        rules && rules->readRecordField(field0, field, *index))
        return;
    const store::KeyTarget where = store::recordKeyTarget(field.key);
    switch (where.target) {
        case store::RecordTarget::TextArray:
            form.at("Text" + std::to_string(where.array), *index).text = field.value;
            break;
        case store::RecordTarget::Check:
            form.at("Check", *index).caption = field.value;
            break;
        case store::RecordTarget::Picture1:
            showPicture(form, "Picture2", 1, field.value, picturesFolder);
            break;
        case store::RecordTarget::Picture2:
            showPicture(form, "Picture4", 2, field.value, picturesFolder);
            break;
        case store::RecordTarget::Other:
            break;
    }
}

// One key field of the line. A field without "=" is a fault for the caller; any fault of the field's
// own value is ignored and loses that field only.
void readField(Form& form, const std::string& field0, const std::string& text,
               const std::string& picturesFolder) {
    std::optional<store::RecordField> field = store::parseRecordField(text);
    if (!field)
        throw AppError(err::kSubscriptOutOfRange, "Subscript out of range: the field \"" +
                                                      text.substr(0, 40) + "\" of the file has no \"=\"");
    try {
        setField(form, field0, *field, picturesFolder);
    } catch (const ProgramEnded&) {
        throw;
    } catch (...) {
    }
}

}  // namespace

// An opened file's dates go through the same walk as after a change of year.
void recheckDates() { recheckYearDates(); }

Form* readDataFile(std::string path, const ProgramParts& parts) {
    Form* form = nullptr;
    std::vector<std::string> fields;
    const std::string& picturesFolder = parts.edition.picturesFolder;
    // Up to the first key field, a fault is this procedure's own: it is reported here and the read ends.
    runGuarded(kReadLabel, [&] {
        if (path.empty()) return;
        std::string line = store::withCheckKeys(readRecordLine(path));
        for (int pass = 0; pass < 2; ++pass) {
            std::optional<std::string> newer = store::rewrittenCardLine(line);
            if (!newer) newer = store::rewrittenMiscLine(line);
            if (!newer) break;
            rewriteRecordFile(path, *newer);
            line = store::withCheckKeys(readRecordLine(path));
        }
        fields = store::splitRecordLine(line);
        Form& opened = openFormOf(fields[0], path, parts);
        // The placed form's first field takes the focus and its tip now, so that the path written
        // next is what the operator reads.
        parts.desktop.settleFocus();
        if (Control* status = opened.find("labelMisc")) {
            status->foreColor = kRed;
            status->caption = path;
        }
        if (auto* rules = dynamic_cast<CatalogueForm*>(&opened)) rules->beforeFileRead();
        if (fields.size() > 2) readField(opened, fields[0], fields[2], picturesFolder);
        form = &opened;
    });
    if (!form) return nullptr;
    // From the second key field on, a fault reaches the caller's handler.
    for (std::size_t i = 3; i < fields.size(); ++i) readField(*form, fields[0], fields[i], picturesFolder);
    recheckDates();
    // The recheck's date edits clear the status line as they pass: unless one of them refused its date
    // and said so there, the operator reads the path of the file just opened.
    if (Control* status = form->find("labelMisc"); status && status->caption.empty()) {
        status->foreColor = kRed;
        status->caption = parts.document.currentFileName;
    }
    if (auto* rules = dynamic_cast<CatalogueForm*>(form)) rules->afterFileRead();
    return form;
}

}  // namespace lw
