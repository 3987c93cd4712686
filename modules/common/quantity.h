#pragma once

#include "common/number.h"

namespace common {

/// A number of a simulation's state, and which of its parameters that is.
template <class State, class Parameter>
struct Quantity : Number {
    Parameter parameter;
    double State::*value;
    const char16_t* key; ///< in files of exercises
};

} // namespace common
