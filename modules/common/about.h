#pragma once

namespace common {

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
    const Transport* transport = nullptr; ///< null for what stands still
};

} // namespace common
