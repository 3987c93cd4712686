#include "common/playback.h"

#include <algorithm>

namespace common {

void Playback::setDuration(double seconds) {
    duration_ = seconds;
    seek(time_);
}

void Playback::seek(double seconds) {
    time_ = std::clamp(seconds, 0.0, duration_);
    if (isAtEnd())
        running_ = false;
}

void Playback::start() {
    if (isAtEnd())
        time_ = 0;
    running_ = duration_ > 0;
}

void Playback::toggle() {
    if (running_)
        pause();
    else
        start();
}

void Playback::reset() {
    pause();
    time_ = 0;
}

void Playback::step(double seconds) {
    pause();
    seek(time_ + seconds);
}

void Playback::advance(double seconds) {
    if (running_)
        seek(time_ + seconds * rate_);
}

} // namespace common
