#pragma once

#include <string>

namespace common {

/// A heading (without a formula) or a formula with what it is called.
struct Law {
    std::u16string words;
    std::u16string formula = {};
};

} // namespace common
