#pragma once
// SaveForm, the form shown when the file being saved exists already: keep its name, rename it, or move
// on to the next free sequence number; and the atomic write of a data file that the saves share.

#include <string>

#include "model/form.h"

namespace lw {

// The values SaveForm leaves in SaveResult, a text global: saveDataFile writes the file itself only on "2".
constexpr const char* kSaveResultWrite = "2";  // write under the same path
constexpr const char* kSaveResultDone = "4";   // stop: the form wrote what was wanted, or nothing was

// Writes the record and its line end to the path, whole or not at all. On failure the file on disk is
// unchanged, the operator is told why in a box titled with Source, and the result is false; a folder that
// is gone or cannot be written also has its remembered save folder checked.
bool writeRecord(const std::string& Path, const std::string& Record, const std::string& Source);

class SaveForm : public Form {
public:
    static constexpr int kFormWidth = 9600;
    static constexpr int kMargin = 240;

    SaveForm();

    // Given by saveDataFile before the form is loaded.
    std::string F7_Path;
    // Split from the path at loadForm.
    std::string F7_Folder;
    std::string F7_BaseName;  // as it came in: the name a rename deletes
    std::string F7_Extension;

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
};

// "Current File: ..." with its options, as Label2 shows it; F99 on the command line shows the raw form.
std::string saveFormCurrentText(const std::string& folder, const std::string& baseName,
                                const std::string& extension, bool f99);

}  // namespace lw
