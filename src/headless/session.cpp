#include "headless/session.h"

namespace lw::headless {

std::optional<QueuedAnswer> Session::takeAnswer(const std::string& kind) {
    for (auto it = answers.begin(); it != answers.end(); ++it) {
        if (it->kind == kind) {
            QueuedAnswer answer = *it;
            answers.erase(it);
            return answer;
        }
    }
    return std::nullopt;
}

}  // namespace lw::headless
