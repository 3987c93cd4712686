#pragma once

#include "shell/shared_state.h"

#include <cstdint>
#include <optional>

namespace viewer {

/// The pages visited, over `HistoryPages` and `HistoryPos` of the shared state. Slots beyond the
/// position are kept: after going back and on to another page, forward leads nowhere until back was
/// used again, and may then reach entries of the path that was left. This is meant so.
class History {
public:
    explicit History(shell::SharedState& state) : state_(state) {}

    /// Appends a page; at 100 pages the oldest falls out.
    void record(std::int16_t page);

    /// Moves one step and gives the page number there: 0 for an empty slot, nothing outside the
    /// table, where the position goes all the same. Called only while the button for it is enabled.
    std::optional<std::int16_t> stepBack();
    std::optional<std::int16_t> stepForward();

    bool canGoBack() const { return state_.HistoryPos >= 2; }
    /// Whether forward would lead to an empty slot. False at the last slot, so that forward stays
    /// possible there: meant so.
    bool nextSlotIsEmpty() const;

    /// While one of these lives, pages shown are not recorded.
    class Pause {
    public:
        explicit Pause(shell::SharedState& state) : state_(state) {
            state_.HistoryRecording = false;
        }
        ~Pause() { state_.HistoryRecording = true; }
        Pause(const Pause&) = delete;
        Pause& operator=(const Pause&) = delete;

    private:
        shell::SharedState& state_;
    };

private:
    std::optional<std::int16_t> step(std::int16_t distance);

    shell::SharedState& state_;
};

} // namespace viewer
