// The program in a browser page: the edition named by the address, the shipped files in the page's
// own file system, and the page's input handed to the engine through the functions below.
#include <emscripten.h>
#include <emscripten/val.h>

#include <iostream>
#include <memory>

#include "forms/register_forms.h"
#include "headless/headless_platform.h"
#include "model/app_error.h"
#include "shell/frame_window_model.h"
#include "text/case.h"
#include "web/page_disk.h"
#include "web/page_files.h"
#include "web/page_status.h"
#include "web/page_ui.h"
#include "web/page_view.h"

namespace {

// The shipped files and fonts are preloaded there; the per-user folder lives in the page's memory.
const char* const kShippedFiles = "/app";
const char* const kRoot = "/ledgerwick";

// "?edition=OthAgcy" names the edition; Venturo when the address names none or a name of other letters.
std::string editionOfAddress() {
    using emscripten::val;
    const val query = val::global("URLSearchParams").new_(val::global("location")["search"]);
    const val named = query.call<val>("get", std::string("edition"));
    std::string edition = named.isNull() ? "" : named.as<std::string>();
    const bool plain =
        !edition.empty() && edition.size() < 32 &&
        edition.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789") ==
            std::string::npos;
    return "Ledgerwick_" + (plain ? edition : std::string("Venturo"));
}

// The editions whose settings the page keeps, by the name their folder of user INF files has.
std::string keptEditionOf(const std::string& edition) {
    for (const char* kept : {"Venturo", "OthAgcy"})
        if (lw::text::equalsNoCase(edition, std::string("Ledgerwick_") + kept)) return kept;
    return {};
}

// A tab of the page holds its edition's lock of the browser for as long as it is open, so that another
// tab of the same edition finds this program's earlier instance running, as a second start on the desktop
// does, and the two never write one edition's settings over each other. True when another tab holds it.
EM_ASYNC_JS(int, earlierTabHolds, (const char* lockName), {
    if (!navigator.locks) return 0;
    return await new Promise(function(answer) {
        navigator.locks.request(
            UTF8ToString(lockName), {ifAvailable : true}, function(lock) {
                answer(lock ? 0 : 1);
                if (lock) return new Promise(function(){});
            });
    });
});

struct Page {
    lw::web::PageDisk disk;
    lw::headless::Session session;
    lw::web::PageUi ui;
    std::unique_ptr<lw::headless::HeadlessPlatform> platform;
    std::unique_ptr<lw::Program> program;
    std::unique_ptr<lw::web::PageView> view;
};

Page* page = nullptr;

lw::web::PageView* view() { return page ? page->view.get() : nullptr; }

}  // namespace

extern "C" {

EMSCRIPTEN_KEEPALIVE void lw_page_key(int keyCode, int shift, const char* name) {
    if (view()) view()->key(keyCode, shift, name);
}
EMSCRIPTEN_KEEPALIVE int lw_page_field_pressed(int field) {
    return view() && view()->fieldPressed(field) ? 1 : 0;
}
EMSCRIPTEN_KEEPALIVE void lw_page_field_selected(int field, int start, int end) {
    if (view()) view()->fieldSelected(field, start, end);
}
EMSCRIPTEN_KEEPALIVE void lw_page_face_clicked(int x, int y, int button) {
    if (view()) view()->faceClicked(x, y, button);
}
EMSCRIPTEN_KEEPALIVE void lw_page_menu(const char* name) {
    if (view()) view()->menuChosen(name);
}
EMSCRIPTEN_KEEPALIVE void lw_page_paste(const char* utf8) {
    if (view()) view()->pasted(utf8);
}
EMSCRIPTEN_KEEPALIVE void lw_page_control(int field, int entry) {
    if (view()) view()->controlUsed(field, entry);
}
EMSCRIPTEN_KEEPALIVE void lw_page_frame_button(int button) {
    if (view()) view()->frameButton(button);
}
EMSCRIPTEN_KEEPALIVE void lw_page_dialog_close() {
    if (view()) view()->dialogClosing();
}
// Called at once, not through the engine's waits: it decides from the page alone and never sleeps.
EMSCRIPTEN_KEEPALIVE int lw_page_key_seen(int keyCode, int shift, int released) {
    return view() ? static_cast<int>(view()->keySeen(keyCode, shift, released != 0)) : 0;
}
// What the page's own glue has to tell goes to the status line as the engine's words do, and clears
// as they do; it never sleeps either.
EMSCRIPTEN_KEEPALIVE void lw_page_status(const char* utf8) { lw::web::showStatus(utf8); }
}

int main() {
    page = new Page;  // lives as long as the page
    lw::store::useDisk(&page->disk);
    page->session.out = &std::cout;
    page->session.root = kRoot;
    page->session.edition = editionOfAddress();
    page->session.user = "Trainer";
    page->session.computer = "Browser";
    page->session.executableFolder = kShippedFiles;
    // The browser's print dialog stands for the printers of a machine.
    page->session.printers = {"The browser's print dialog"};
    // What the program keeps for its user (the edition's user INF file, the taxpayer store in it) lives
    // in the browser's storage; the shipped files are installed anew beside it.
    const std::string kept = keptEditionOf(page->session.edition);
    if (!kept.empty()) {
        page->session.running = earlierTabHolds(("Ledgerwick " + kept).c_str()) != 0;
        if (!page->session.running)
            lw::web::loadKeptFolders({std::string(kRoot) + "/LedgerwickInfFiles/" + kept});
    }
    page->platform = std::make_unique<lw::headless::HeadlessPlatform>(page->session);
    page->program = std::make_unique<lw::Program>(page->ui, *page->platform);
    page->view = std::make_unique<lw::web::PageView>(*page->program);
    page->ui.attach(*page->view);
    lw::registerAllForms();
    try {
        lw::loadFrame();
    } catch (const lw::ProgramEnded&) {
        page->view->programEnded();
    }
    lw::web::settleFiles();
    page->view->show();
    emscripten::val::global("document")["body"].call<void>("setAttribute", std::string("data-ready"),
                                                           std::string("true"));
    return 0;
}
