#include "web/page_sleep.h"

#include <emscripten.h>

namespace lw::web {

namespace {
bool asleep = false;
}  // namespace

void sleepEngine(int milliseconds) {
    asleep = true;
    emscripten_sleep(milliseconds);
    asleep = false;
}

bool engineAsleep() { return asleep; }

}  // namespace lw::web
