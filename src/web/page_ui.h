#pragma once
// The screen as the page shows it: a modal form waits in a dialog while the operator answers it.

#include <string>

#include "model/ports.h"

namespace lw::web {

class PageView;

class PageUi : public UiPort {
public:
    void attach(PageView& view) { view_ = &view; }

    void runModal(Form& form) override;
    void formUnloaded(Form& form) override;
    void refresh() override;
    void copyPictureToClipboard(Form& form) override;
    std::string clipboardText() override { return clipboard_; }
    void setClipboardText(const std::string& text) override { clipboard_ = text; }
    bool printForm(const Form& form, const std::string& printer) override;
    std::optional<std::string> fileDialog(const FileDialogRequest& request) override;
    bool openDocument(const std::string& path) override;
    void quit() override;
    void inputRefused(const std::string& why) override;

private:
    PageView* view_ = nullptr;
    std::string clipboard_;
};

}  // namespace lw::web
