#pragma once
// The screen as the script plays it: boxes and dialogs answered from the queue, the clipboard in memory.

#include "headless/session.h"
#include "model/ports.h"

namespace lw::headless {

class HeadlessUi : public UiPort {
public:
    explicit HeadlessUi(Session& session) : session_(session) {}

    void runModal(Form& form) override;
    void copyPictureToClipboard(Form& form) override;
    bool printForm(const Form& form, const std::string& printer) override;
    std::string clipboardText() override { return session_.clipboardText; }
    void setClipboardText(const std::string& text) override { session_.clipboardText = text; }
    bool openDocument(const std::string& path) override;
    std::optional<std::string> fileDialog(const FileDialogRequest& request) override;
    void quit() override;
    void inputRefused(const std::string& why) override;

private:
    void answerMessageBox(Form& box);
    void answerErrorReport(Form& report);
    void answerSaveForm(Form& save);
    void answerK1List(Form& list);
    void pressButton(Form& form, const std::string& caption, int line);

    Session& session_;
};

}  // namespace lw::headless
