#include "viewer/history.h"

namespace viewer {

namespace {

constexpr std::int16_t kLastSlot = 100;

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

std::int16_t History::stepBack() {
    --state_.HistoryPos;
    return state_.HistoryPages.valueOr(state_.HistoryPos, 0);
}

std::int16_t History::stepForward() {
    ++state_.HistoryPos;
    return state_.HistoryPages.valueOr(state_.HistoryPos, 0);
}

bool History::nextSlotIsEmpty() const {
    return state_.HistoryPos < kLastSlot &&
           state_.HistoryPages.valueOr(state_.HistoryPos + 1, 0) == 0;
}

} // namespace viewer
