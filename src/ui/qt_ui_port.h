#pragma once
// The screen of the window program: modal boxes as dialogs, the child form in the frame, the clipboard.

#include <QPointer>
#include <functional>
#include <string>

#include "model/ports.h"
#include "ui/frame_window.h"

namespace lw::ui {

class QtUiPort : public UiPort {
public:
    QtUiPort();
    ~QtUiPort() override;

    // The frame window that hosts child forms and shows refusals in its status line. It may come after
    // the first child form has been loaded: it then shows the desktop's active child.
    void setFrameWindow(FrameWindow* window);
    // Makes the frame window when the first child form shows, so that the frame is on the screen while
    // the rest of the start-up runs; the maker calls setFrameWindow.
    void makeFrameWindowWith(std::function<void()> maker) { makeFrame_ = std::move(maker); }
    FrameWindow* frameWindow() const { return frame_; }

    void runModal(Form& form) override;
    void formLoaded(Form& form) override;
    void formUnloaded(Form& form) override;
    void childActivated(Form& form) override;
    void refresh() override;
    void copyPictureToClipboard(Form& form) override;
    bool printForm(const Form& form, const std::string& printer) override;
    std::string clipboardText() override;
    void setClipboardText(const std::string& text) override;
    bool openDocument(const std::string& path) override;
    std::optional<std::string> fileDialog(const FileDialogRequest& request) override;
    // Ends Qt's loops, nested ones too, and throws ProgramEnded through the model to the driver.
    void quit() override;
    void inputRefused(const std::string& why) override;

    // The last refusal shown, for the tests.
    const std::string& lastRefusal() const { return lastRefusal_; }

    // The most a paste takes from the clipboard.
    static constexpr std::size_t kPasteLimit = 64 * 1024;

private:
    QPointer<FrameWindow> frame_;
    std::function<void()> makeFrame_;
    std::string lastRefusal_;
};

}  // namespace lw::ui
