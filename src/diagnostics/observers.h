#pragma once
// A list of callbacks that the drivers (the script runner, the tests) hang on the boxes and reports.

#include <functional>
#include <utility>
#include <vector>

namespace lw {

template <class recordLine>
class ObserverList {
public:
    using Observer = std::function<void(const recordLine&)>;

    int add(Observer observer) {
        entries_.emplace_back(++lastId_, std::move(observer));
        return lastId_;
    }

    void remove(int id) {
        for (auto it = entries_.begin(); it != entries_.end(); ++it) {
            if (it->first == id) {
                entries_.erase(it);
                return;
            }
        }
    }

    void notify(const recordLine& record) const {
        // An observer may add or remove observers while it runs: call a copy.
        auto entries = entries_;
        for (const auto& entry : entries) entry.second(record);
    }

private:
    std::vector<std::pair<int, Observer>> entries_;
    int lastId_ = 0;
};

}  // namespace lw
