#include "web/page_status.h"

#include <emscripten/eventloop.h>
#include <emscripten/val.h>

#include <cstdint>

namespace lw::web {

namespace {

// As long as the window's status bar keeps a message.
constexpr double kShownFor = 8000;

// Each message shown has its number: a message's timer clears the line only while it is the last one.
unsigned shownCount = 0;

emscripten::val statusLine() {
    return emscripten::val::global("document").call<emscripten::val>("getElementById", std::string("status"));
}

void clearIfStillShown(void* shown) {
    if (reinterpret_cast<std::uintptr_t>(shown) == shownCount) statusLine().set("textContent", std::string());
}

}  // namespace

void showLastingStatus(const std::string& utf8) {
    statusLine().set("textContent", utf8);
    ++shownCount;
}

void showStatus(const std::string& utf8) {
    showLastingStatus(utf8);
    emscripten_set_timeout(clearIfStillShown, kShownFor, reinterpret_cast<void*>(std::uintptr_t{shownCount}));
}

}  // namespace lw::web
