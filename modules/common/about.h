#pragma once

#include <array>
#include <cstddef>
#include <span>

namespace common {

/// One of the things that a drawing shows or not.
template <class Shown>
struct Choice {
    const char16_t* caption;
    bool Shown::*shown;
};

/// The box of such a thing, and whether that is shown at first.
struct Box {
    const char16_t* caption;
    bool isShown;
};

template <class Shown, std::size_t count>
constexpr std::array<Box, count> boxesOf(const Choice<Shown> (&choices)[count]) {
    const Shown first;
    std::array<Box, count> boxes = {};
    for (std::size_t i = 0; i < count; ++i)
        boxes[i] = {choices[i].caption, first.*choices[i].shown};
    return boxes;
}

/// What a simulation that runs says of its time.
struct Transport {
    const char16_t* slider;  ///< name of what is slid
    const char16_t* nothing; ///< why there is nothing to run, when there is nothing
    double step;             ///< one step by hand, s
    bool hasRates;           ///< slower and faster than the clock
};

/// What windows and the pages of browsers say of a simulation whatever its state.
struct About {
    int module; ///< its number, 1 to 30
    const char16_t* title;
    std::span<const char16_t* const> views; ///< captions of what is seen, one at a time
    std::span<const Box> boxes = {};        ///< of the first of them
    const Transport* transport = nullptr;   ///< null for what stands still
};

} // namespace common
