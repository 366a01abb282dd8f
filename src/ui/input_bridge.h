#pragma once
// The one way operator input reaches the model from Qt: every view, menu and dialog forwards through here.

#include <functional>

namespace lw::ui {

// Something on the screen that mirrors the model and shows it again after each input.
class Refreshable {
public:
    Refreshable();
    virtual ~Refreshable();
    Refreshable(const Refreshable&) = delete;
    Refreshable& operator=(const Refreshable&) = delete;
    virtual void refresh() = 0;
};

// Runs the input into the model, then refreshes everything on the screen. The end of the program,
// thrown from inside, stops here and ends Qt's event loops; nothing else is thrown into Qt either.
void forwardInput(const std::function<void()>& input);
// Shows the model as it stands in every view, menu and window.
void refreshAll();

// Set once the program has been told to end: later input is dropped.
bool programEnded();
void markProgramEnded();
// For a new program in the same process, as the tests make one: input flows again.
void clearProgramEnded();

}  // namespace lw::ui
