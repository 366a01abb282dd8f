#include "web/page_ui.h"

#include <emscripten.h>

#include "model/app_error.h"
#include "model/form.h"
#include "text/cp1252.h"
#include "web/page_files.h"
#include "web/page_paper.h"
#include "web/page_sleep.h"
#include "web/page_view.h"

namespace lw::web {

namespace {
// The modal forms shown, innermost last; each is struck off when the engine unloads it.
std::vector<const Form*> waiting;
}  // namespace

void PageUi::runModal(Form& form) {
    if (!view_) return;
    waiting.push_back(&form);
    view_->showModal(form);
    // The page keeps running while the operator answers: the engine's stack waits here, unwound, and
    // the page's input, held while it sleeps, is run here when it wakes; a box shown by that input waits
    // in turn on top of this one, so that the stack only ever sleeps in one place.
    while (std::find(waiting.begin(), waiting.end(), &form) != waiting.end()) {
        sleepEngine(10);
        view_->runWaitingInput();
    }
    view_->closeModal();
}

void PageUi::formUnloaded(Form& form) {
    waiting.erase(std::remove(waiting.begin(), waiting.end(), &form), waiting.end());
    if (view_) view_->forget(form);
}

void PageUi::refresh() {
    // Shown after the input that changed it: the page is brought up to date when the engine returns.
}

void PageUi::copyPictureToClipboard(Form& form) { clipPicture(form); }

// The browser's print dialog chooses the printer: the page only lays the form on the paper.
bool PageUi::printForm(const Form& form, const std::string& printer) {
    (void)printer;
    printOnPaper(form);
    return true;
}

std::optional<std::string> PageUi::fileDialog(const FileDialogRequest& request) {
    return askForFile(request);
}

bool PageUi::openDocument(const std::string& path) { return openInTab(path); }

void PageUi::quit() { throw ProgramEnded{}; }

void PageUi::inputRefused(const std::string& why) {
    if (view_) view_->showStatus(text::cp1252ToUtf8(why));
}

}  // namespace lw::web
