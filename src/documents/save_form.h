#pragma once
// SaveForm, the form shown when the file being saved exists already: keep its name, rename it, or move
// on to the next free sequence number; and the atomic write of a data file that the saves share.

#include <memory>
#include <string>

#include "model/form.h"
#include "model/program_parts.h"
#include "model/save_outcome.h"

namespace lw {

struct UserInfSection;

// Writes the record and its line end to the path, whole or not at all. On failure the file on disk is
// unchanged, the operator is told why in a box titled with source, and the result is false; a folder that
// is gone or cannot be written also has its remembered save folder checked in the user's INF section. The
// box shows on the desktop.
bool writeRecord(const std::string& filePath, const std::string& record, const std::string& source,
                 const UserInfSection& userInf, Desktop& desktop);

class SaveForm : public Form {
public:
    static constexpr int kFormWidth = 9600;
    static constexpr int kMargin = 240;

    // The form works on the document of the program: it builds and writes its record.
    explicit SaveForm(const ProgramParts& parts);

    // Shows the form modally for a path that holds a file, and tells how it ended.
    static SaveOutcome run(const ProgramParts& parts, const std::string& path);

    // How the form has ended: Done until a button says otherwise. The caller keeps it, as the form is
    // gone once it is closed.
    std::shared_ptr<const SaveOutcome> outcome() const { return outcome_; }

    // Given by run before the form is loaded.
    std::string savePath;
    // Split from the path at loadForm.
    std::string saveFolder;
    std::string saveBaseName;  // as it came in: the name a rename deletes
    std::string saveExtension;

    Control& Label1;  // why names must be unique
    Control& Label3_0;
    Control& Text1;  // base name
    Control& Label4;
    Control& Text2;  // extension
    Control& Label3_1;
    Control& Label2;  // current file, folder and options
    Control& cmdSave;
    Control& cmdNewSequence;
    Control& cmdExit;

    void onLoad() override;
    void onActivate() override;
    void onChange(Control& control) override;
    void onClick(Control& control, MouseButton button) override;

    void onText1Change();
    void onSave();
    void onNewSequence();
    void onExit();

    // The next path of the name's "_###" sequence that no file holds, or "" when the name has no such
    // ending. 7 goes on as 008, 999 as 1000.
    static std::string nextSequencePath(const std::string& path);

private:
    void end(SaveOutcome outcome);
    UserInfSection userInf() const;

    const ProgramParts& parts_;
    std::shared_ptr<SaveOutcome> outcome_ = std::make_shared<SaveOutcome>(SaveOutcome::Done);
};

// "Current File: ..." with its options, as Label2 shows it; F99 on the command line shows the raw form.
std::string saveFormCurrentText(const std::string& folder, const std::string& baseName,
                                const std::string& extension, bool f99);

}  // namespace lw
