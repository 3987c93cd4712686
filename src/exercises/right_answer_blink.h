#pragma once

#include <cstdint>

namespace exercises {

/// The popup after a right answer: it shows two pictures in turn and goes at the third tick.
class RightAnswerBlink {
public:
    static constexpr int kIntervalMs = 500;

    void activate() { *this = {}; }

    /// One interval has passed; false when the popup has been there long enough.
    bool tick() {
        ++ticks_;
        showsFirst_ = !showsFirst_;
        return ticks_ < kTicks;
    }

    bool showsFirstPicture() const { return showsFirst_; }

private:
    static constexpr std::int16_t kTicks = 3;

    std::int16_t ticks_ = 0;
    bool showsFirst_ = true;
};

} // namespace exercises
