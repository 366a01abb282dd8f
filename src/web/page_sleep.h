#pragma once
// The engine's stack sleeps for a while (a modal form's wait, a file picker's), unwound, while the page
// runs. It sleeps in one place only: the page's input meanwhile waits for the engine to wake and run it.

namespace lw::web {

void sleepEngine(int milliseconds);
bool engineAsleep();

}  // namespace lw::web
