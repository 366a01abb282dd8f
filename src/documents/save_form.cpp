#include "documents/save_form.h"

#include <cctype>
#include <filesystem>
#include <system_error>

#include "diagnostics/error_tail.h"
#include "diagnostics/message_box.h"
#include "documents/file_dialogs.h"
#include "documents/record.h"
#include "model/desktop.h"
#include "model/open_document.h"
#include "model/ports.h"
#include "shell/paths.h"
#include "store/atomic_file.h"
#include "store/disk.h"
#include "text/case.h"
#include "text/masks.h"

namespace lw {

namespace {

constexpr int kInnerWidth = SaveForm::kFormWidth - 2 * SaveForm::kMargin;
constexpr int kLineHeight = 255;
constexpr int kFieldHeight = 315;
constexpr int kTextLineHeight = 210;  // one line of Label2's fixed-width text
constexpr int kButtonHeight = 900;    // three lines of caption
constexpr int kGap = 120;
constexpr int kExtensionWidth = 2280;

const char* const kLineEnd = "\r\n";
const char* const kSaveLabel = "F7_Save:cmdSave_Click";
const char* const kSequenceLabel = "F7_Save:cmdNewSequence_Click";

// A name with no extension takes no point, so that the path rebuilt from the parts is the path given.
std::string fileNameOf(const std::string& baseName, const std::string& extension) {
    return extension.empty() ? baseName : baseName + "." + extension;
}

std::string pathOf(const std::string& folder, const std::string& baseName, const std::string& extension) {
    return joinPath(folder, fileNameOf(baseName, extension));
}

std::string folderOf(const std::string& path) {
    const std::size_t slash = path.find_last_of('/');
    if (slash == std::string::npos) return {};
    return path.substr(0, slash == 0 ? 1 : slash);
}

bool canWriteInto(const std::string& folder) { return store::disk().canWriteInto(folder); }

int lineCount(const std::string& text) {
    int lines = 1;
    for (std::size_t at = text.find(kLineEnd); at != std::string::npos; at = text.find(kLineEnd, at + 2))
        ++lines;
    return lines;
}

void tell(Desktop& desktop, const std::string& source, const std::string& message) {
    showMessageBox(desktop, {source, message});
}

}  // namespace

bool writeRecord(const std::string& filePath, const std::string& recordLine, const std::string& sourceLabel,
                 const UserInfSection& userInf, Desktop& desktop) {
    std::string error;
    if (store::writeFileAtomically(filePath, recordLine + kLineEnd, error)) return true;
    const std::string folder = folderOf(filePath);
    // Each line starts with a short word, so that the box can break a long path after it.
    if (!folderExists(folder) || !canWriteInto(folder)) {
        // The remembered folder may be the one that is gone: the next dialog must not start there.
        verifyRememberedFolder(FileDialogMode::Save, userInf);
        tell(desktop, sourceLabel,
             std::string("The file was NOT saved.") + kLineEnd + "Folder: " + folder + kLineEnd +
                 "This folder does not exist or cannot be written. Choose another folder and save "
                 "again.");
        return false;
    }
    tell(desktop, sourceLabel,
         std::string("The file was NOT saved; a file of that name is unchanged.") + kLineEnd +
             "File: " + filePath + kLineEnd + "Reason: " + error);
    return false;
}

std::string saveFormCurrentText(const std::string& folder, const std::string& baseName,
                                const std::string& extension, bool f99) {
    const std::string indent(17, ' ');
    const std::string layout = std::string("Current File:   <FILE>") + kLineEnd + "Current Folder: <FOLDER>" +
                               kLineEnd + "Options:        Press Save Button" + kLineEnd + indent +
                               "Press Assign Next Sequence Number Button" + kLineEnd + indent +
                               "Press Exit Without Saving Button";
    if (f99) return text::replaceAll(layout, "<FILE>", baseName) + layout;
    return text::replaceAll(text::replaceAll(layout, "<FILE>", fileNameOf(baseName, extension)), "<FOLDER>",
                            folder);
}

SaveForm::SaveForm(const ProgramParts& parts)
    : Form("F7_Save"),
      Label1(add(ControlKind::Label, "Label1")),
      Label3_0(add(ControlKind::Label, "Label3", 0)),
      Text1(add(ControlKind::TextBox, "Text1")),
      Label4(add(ControlKind::Label, "Label4")),
      Text2(add(ControlKind::TextBox, "Text2")),
      Label3_1(add(ControlKind::Label, "Label3", 1)),
      Label2(add(ControlKind::Label, "Label2")),
      cmdSave(add(ControlKind::CommandButton, "cmdSave")),
      cmdNewSequence(add(ControlKind::CommandButton, "cmdNewSequence")),
      cmdExit(add(ControlKind::CommandButton, "cmdExit")),
      parts_(parts) {
    isChild = false;
    caption = "File Already Exists";
    width = kFormWidth;

    for (Control* label : {&Label1, &Label3_0, &Label4, &Label3_1, &Label2}) {
        label->opaque = false;
        label->backColor = kButtonFace;
        label->wordWrap = true;
    }
    int top = kMargin;
    Label1.place(kMargin, top, kInnerWidth, 4 * kLineHeight);
    top += Label1.height + kGap;

    const int extensionLeft = kMargin + kInnerWidth - kExtensionWidth;
    const int nameWidth = extensionLeft - kGap - kMargin;
    Label3_0.caption = "File Name";
    Label3_0.place(kMargin, top, nameWidth, kLineHeight);
    Label4.caption = "Extension";
    Label4.place(extensionLeft, top, kExtensionWidth, kLineHeight);
    top += kLineHeight;
    Text1.place(kMargin, top, nameWidth, kFieldHeight);
    Text2.place(extensionLeft, top, kExtensionWidth, kFieldHeight);
    // The extension is shown, not chosen: a rename deletes the old file under this extension.
    Text2.locked = true;
    Text2.tabStop = false;
    Text2.backColor = kButtonFace;
    top += kFieldHeight + kGap;

    Label3_1.caption =
        "If name of existing file is changed, it will be renamed when the Save Button pressed.";
    Label3_1.place(kMargin, top, kInnerWidth, kLineHeight);
    top += kLineHeight + kGap;

    // Its options line up under each other in a fixed-width font.
    Label2.fontName = "Courier New";
    Label2.wordWrap = false;
    Label2.place(kMargin, top, kInnerWidth, 5 * kTextLineHeight);

    Text1.tabIndex = 0;
    cmdSave.tabIndex = 1;
    cmdNewSequence.tabIndex = 2;
    cmdExit.tabIndex = 3;
    for (Control* button : {&cmdSave, &cmdNewSequence, &cmdExit}) button->backColor = kButtonFace;
    cmdExit.caption = "Exit WITHOUT SAVING";
    // Load places the buttons and the form's bottom under Label2 once its lines are known.
}

void SaveForm::onLoad() {
    runGuarded("F7_Save:Form_Load", [this] {
        cmdNewSequence.caption =
            std::string("ASSIGN Next Sequence Number") + kLineEnd + "CREATE new file" + kLineEnd + "EXIT";
        cmdExit.caption = "Exit WITHOUT SAVING";

        const std::size_t slash = savePath.find_last_of('/');
        saveFolder = folderOf(savePath);
        const std::string fileName = slash == std::string::npos ? savePath : savePath.substr(slash + 1);
        const std::size_t dot = fileName.rfind('.');
        saveExtension = dot == std::string::npos ? std::string() : fileName.substr(dot + 1);
        saveBaseName = dot == std::string::npos ? fileName : fileName.substr(0, dot);

        Text1.text = saveBaseName;
        Text2.text = saveExtension;
        Label1.caption =
            std::string(
                "File Names must be UNIQUE (including Disk, Folder/Directory and File Name). The File Names "
                "generated by the Ledgerwick include a SEQUENCE NUMBER (###) that can be used to make the "
                "file "
                "name unique.") +
            kLineEnd + kLineEnd + "The Ledgerwick can assign a NEW sequence number to the if desired.";
        onText1Change();

        const bool f99 = text::containsNoCase(parts_.platform.commandLine(), "F99");
        Label2.caption = saveFormCurrentText(saveFolder, saveBaseName, saveExtension, f99);
        Label2.height = lineCount(Label2.caption) * kTextLineHeight;

        int top = Label2.top + Label2.height + 2 * kGap;
        cmdSave.place(kMargin, top, kInnerWidth, kButtonHeight);
        top += kButtonHeight + kGap;
        const int half = (kInnerWidth - kGap) / 2;
        cmdNewSequence.place(kMargin, top, half, kButtonHeight);
        cmdExit.place(kMargin + half + kGap, top, kInnerWidth - half - kGap, kButtonHeight);
        height = top + kButtonHeight + kMargin;
    });
}

void SaveForm::onActivate() { setFocus(Text1); }

void SaveForm::onChange(Control& control) {
    if (&control == &Text1) onText1Change();
}

void SaveForm::onClick(Control& control, MouseButton) {
    if (&control == &cmdSave) onSave();
    if (&control == &cmdNewSequence) onNewSequence();
    if (&control == &cmdExit) onExit();
}

void SaveForm::onText1Change() {
    cmdSave.caption =
        "SAVE" + std::string(kLineEnd) + pathOf(saveFolder, Text1.text, saveExtension) + kLineEnd + "EXIT";
}

void SaveForm::onSave() {
    runGuarded(kSaveLabel, [this] {
        if (Text1.text.empty()) {
            tell(parts_.desktop, kSaveLabel, "File Name BLANK - Restoring Original File Name.");
            Text1.text = saveBaseName;
            onText1Change();
            setFocus(Text1);
            return;
        }
        if (text::equalsNoCase(Text1.text, saveBaseName)) {
            end(SaveOutcome::WriteSamePath);
            return;
        }
        // A rename: the record goes under the new name first, so a failed write leaves the old file whole.
        OpenDocument& document = parts_.document;
        const std::optional<std::string> record = buildRecord(document.currentForm, document);
        if (!record) return;
        document.formRecord = *record;
        if (!writeRecord(pathOf(saveFolder, Text1.text, Text2.text), document.formRecord, kSaveLabel,
                         userInf(), parts_.desktop))
            return;
        const std::string old = pathOf(saveFolder, saveBaseName, Text2.text);
        std::error_code ec;
        std::filesystem::remove(old, ec);
        if (ec)
            tell(parts_.desktop, kSaveLabel,
                 std::string("The file was saved under its new name, but the old file is still "
                             "there.") +
                     kLineEnd + "File: " + old + kLineEnd + "Reason: " + ec.message());
        end(SaveOutcome::Done);
    });
}

std::string SaveForm::nextSequencePath(const std::string& path) {
    const std::size_t slash = path.find_last_of('/');
    std::size_t dot = path.rfind('.');
    if (dot != std::string::npos && slash != std::string::npos && dot < slash) dot = std::string::npos;
    const std::string stem = dot == std::string::npos ? path : path.substr(0, dot);
    const std::string extension = dot == std::string::npos ? std::string() : path.substr(dot);

    const std::size_t size = stem.size();
    auto digit = [&](std::size_t at) { return std::isdigit(static_cast<unsigned char>(stem[at])) != 0; };
    if (size < 4 || stem[size - 4] != '_' || !digit(size - 3) || !digit(size - 2) || !digit(size - 1))
        return {};

    int number = std::stoi(stem.substr(size - 3));
    const std::string front = stem.substr(0, size - 4) + "_";
    std::string candidate;
    std::error_code ec;
    do {
        ++number;
        candidate = front + text::formatNumber(std::to_string(number), "00#") + extension;
    } while (std::filesystem::exists(candidate, ec));
    return candidate;
}

void SaveForm::onNewSequence() {
    runGuarded(kSequenceLabel, [this] {
        const std::string target = nextSequencePath(pathOf(saveFolder, Text1.text, Text2.text));
        if (target.empty()) {
            tell(parts_.desktop, kSequenceLabel,
                 std::string("No sequence number can be assigned: the File Name must end in _ "
                             "and three digits, as _000.") +
                     kLineEnd + "Nothing was saved.");
            setFocus(Text1);
            return;
        }
        if (!writeRecord(target, parts_.document.formRecord, kSequenceLabel, userInf(), parts_.desktop))
            return;
        end(SaveOutcome::Done);
    });
}

void SaveForm::onExit() { end(SaveOutcome::Done); }

void SaveForm::end(SaveOutcome outcome) {
    *outcome_ = outcome;
    unload();
}

UserInfSection SaveForm::userInf() const { return userInfSectionOf(parts_.edition, parts_.process); }

SaveOutcome SaveForm::run(const ProgramParts& parts, const std::string& path) {
    Desktop& desktop = parts.desktop;
    auto owned = std::make_unique<SaveForm>(parts);
    owned->savePath = path;
    // A form closed by any other way than its buttons has written nothing.
    const std::shared_ptr<const SaveOutcome> outcome = owned->outcome();
    SaveForm& form = static_cast<SaveForm&>(desktop.load(std::move(owned)));
    if (form.isLoaded()) desktop.showModal(form);
    return *outcome;
}

}  // namespace lw
