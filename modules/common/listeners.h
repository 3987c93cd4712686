#pragma once

#include <functional>
#include <utility>
#include <vector>

namespace common {

/// Those who want to know when something happens. Whoever listens lives as long as what tells.
class Listeners {
public:
    void add(std::function<void()> listener) { listeners_.push_back(std::move(listener)); }

    /// In the order in which they came.
    void tell() const {
        for (const auto& listener : listeners_)
            listener();
    }

private:
    std::vector<std::function<void()>> listeners_;
};

} // namespace common
