#pragma once

#include "common/listeners.h"
#include "common/playback.h"

namespace common {

/// Playback, with word to those who look.
class Player {
public:
    const Playback& playback() const { return playback_; }

    /// Changes it by a function that gets the playback.
    template <class Change>
    void play(Change change) {
        change(playback_);
        moved_.tell();
    }
    void setDuration(double seconds) {
        play([seconds](Playback& playback) { playback.setDuration(seconds); });
    }

    /// The moment has changed, or whether it runs, or how long. Whoever asks lives as long as this.
    void onMoved(std::function<void()> show) { moved_.add(std::move(show)); }

private:
    Playback playback_;
    Listeners moved_;
};

} // namespace common
