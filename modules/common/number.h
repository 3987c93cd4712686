#pragma once

namespace common {

/// A number that a slider sets: what it is called, and where it ends.
struct Number {
    const char16_t* name;   ///< as a pupil reads it
    const char16_t* symbol; ///< a formula
    const char16_t* unit;
    double least;
    double most;
    double step;
    int decimals;
    bool logarithmic = false; ///< the slider gives each factor of ten the same room

    /// `value` within the ends.
    double held(double value) const;

    /// Positions of the slider count from 0, for `least`.
    int positionOf(double value) const;
    /// A whole number of steps; two significant digits on a logarithmic slider.
    double valueAt(int position) const;
};

} // namespace common
