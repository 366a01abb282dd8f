#pragma once
// Everything the logic needs from the world outside: the screen (UiPort) and the machine (PlatformPort).
// The window, the script runner and the tests each supply both.

#include <optional>
#include <string>
#include <vector>

#include "model/date_time.h"

namespace lw {

class Form;

// What the open and save dialogs are asked: the title, where they start, the one filter, a proposed name.
struct FileDialogRequest {
    bool save = false;
    std::string title;
    std::string startFolder;   // empty: the dialog's own default
    std::string proposedName;  // save mode: the file name offered
    std::string filterDescription;
    std::string filterPattern;
};

class UiPort {
public:
    virtual ~UiPort() = default;
    // Shows a loaded form modally; returns once the form has been unloaded.
    virtual void runModal(Form& form) = 0;
    virtual void formLoaded(Form&) {}
    virtual void formUnloaded(Form&) {}
    virtual void childActivated(Form&) {}
    // The model changed outside an operator's input: the view shows it now.
    virtual void refresh() {}
    // Puts a picture of the form's client area, at its pixel size, on the clipboard.
    virtual void copyPictureToClipboard(Form& form) = 0;
    // Prints the form at its true size on the named printer (the system's default when none is named);
    // false when the page could not be printed.
    virtual bool printForm(const Form& form, const std::string& printer) {
        (void)form;
        (void)printer;
        return false;
    }
    virtual std::string clipboardText() = 0;
    virtual void setClipboardText(const std::string& text) = 0;
    // Asks for a path; nothing when the operator cancels. The open dialog lets the operator delete a file.
    virtual std::optional<std::string> fileDialog(const FileDialogRequest& request) {
        (void)request;
        return std::nullopt;
    }
    // Opens a document with the desktop's default program; false when that fails.
    virtual bool openDocument(const std::string& path) = 0;
    // Ends the program at once.
    virtual void quit() = 0;
    // Shows a text that did not fit the code page or the field, in the program's status line.
    virtual void inputRefused(const std::string& why) { (void)why; }
};

class PlatformPort {
public:
    virtual ~PlatformPort() = default;
    virtual DateTime now() = 0;
    // The variable's value in the code page, or nothing when it is not set.
    virtual std::optional<std::string> environment(const std::string& name) = 0;
    virtual std::string executableName() = 0;    // without folder or extension
    virtual std::string executableFolder() = 0;  // where the pictures, icons and guide lie
    virtual std::string commandLine() = 0;
    // The folder that stands for the machine's disk: the program's fixed locations lie beneath it.
    virtual std::string rootFolder() = 0;
    virtual bool earlierInstanceRunning() = 0;
    virtual void activateEarlierInstance(const std::string& title) = 0;
    virtual void sleep(int milliseconds) = 0;
    virtual std::vector<std::string> printers() = 0;  // the default first
    virtual int screenWidthTwips() = 0;
    virtual bool debuggerAttached() { return false; }
};

}  // namespace lw
