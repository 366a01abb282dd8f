#include "ui/input_bridge.h"

#include <QCoreApplication>
#include <QtGlobal>
#include <algorithm>
#include <exception>
#include <vector>

#include "model/app_error.h"

namespace lw::ui {

namespace {

std::vector<Refreshable*>& screens() {
    static std::vector<Refreshable*> all;
    return all;
}

bool ended = false;
bool refreshing = false;

}  // namespace

Refreshable::Refreshable() { screens().push_back(this); }

Refreshable::~Refreshable() {
    auto& all = screens();
    all.erase(std::remove(all.begin(), all.end(), this), all.end());
}

bool programEnded() { return ended; }

void markProgramEnded() {
    ended = true;
    QCoreApplication::exit(0);
}

void clearProgramEnded() { ended = false; }

void refreshAll() {
    if (refreshing || ended) return;
    refreshing = true;
    // A refresh may open or close views (a new child form), so each pass walks a copy and skips the gone.
    const std::vector<Refreshable*> snapshot = screens();
    for (Refreshable* screen : snapshot) {
        const auto& now = screens();
        if (std::find(now.begin(), now.end(), screen) != now.end()) screen->refresh();
    }
    refreshing = false;
}

void forwardInput(const std::function<void()>& input) {
    if (ended) return;
    try {
        input();
    } catch (const ProgramEnded&) {
        markProgramEnded();
        return;
    } catch (const AppError& error) {
        qWarning("Ledgerwick: error %d escaped its handler: %s", error.number(), error.description().c_str());
    } catch (const std::exception& error) {
        qWarning("Ledgerwick: fault escaped its handler: %s", error.what());
    }
    refreshAll();
}

}  // namespace lw::ui
