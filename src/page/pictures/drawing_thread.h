#pragma once

#include <atomic>
#include <chrono>
#include <functional>

namespace page {

/// Set when nobody waits for a piece of work any more.
using GivenUp = std::atomic<bool>;

/// How long work may take.
struct Patience {
    std::chrono::milliseconds work{
        1000}; ///< of the processor, so that a busy machine changes little
    std::chrono::milliseconds wait{5000}; ///< by the clock, for work that waits itself
};

/// What was left behind and still runs; beyond it, nothing new is begun.
inline constexpr int kMostLeftBehind = 4;

/// Does `work` on a thread of its own and waits for its end. False when it was given up: a thread
/// cannot be ended, so it is left behind, with its flag set, and runs until `work` looks at the
/// flag or comes to its end. Hence `work` has to own all that it touches. After each that was given
/// up the next has half the time, to an eighth, until one ends: a page full of hopeless work is
/// shown too. `work` must not throw. To be called by one thread at a time.
bool doInTime(std::function<void(const GivenUp&)> work, Patience patience = {});

} // namespace page
