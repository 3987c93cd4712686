#include "viewer/history.h"

#include "text/rounding.h"

namespace viewer {

namespace {

constexpr std::int16_t kLastSlot = decltype(shell::SharedState::HistoryPages)::last;

} // namespace

void History::record(std::int16_t page) {
    if (state_.HistoryPos >= kLastSlot) {
        for (int i = 1; i < kLastSlot; ++i)
            state_.HistoryPages.store(i, state_.HistoryPages.valueOr(i + 1, 0));
        state_.HistoryPos = kLastSlot;
    } else {
        ++state_.HistoryPos;
    }
    state_.HistoryPages.store(state_.HistoryPos, page);
}

std::optional<std::int16_t> History::stepBack() {
    return step(-1);
}

std::optional<std::int16_t> History::stepForward() {
    return step(1);
}

std::optional<std::int16_t> History::step(std::int16_t distance) {
    // Beyond 16 bits the position keeps its value.
    if (const auto position = text::toInt16(state_.HistoryPos + distance))
        state_.HistoryPos = *position;
    const std::int16_t* page = state_.HistoryPages.slot(state_.HistoryPos);
    return page ? std::optional(*page) : std::nullopt;
}

bool History::nextSlotIsEmpty() const {
    return state_.HistoryPos < kLastSlot &&
           state_.HistoryPages.valueOr(state_.HistoryPos + 1, 0) == 0;
}

} // namespace viewer
