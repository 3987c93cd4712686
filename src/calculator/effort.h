#pragma once

#include <cstddef>

namespace calculator {

/// What an evaluation may spend on walking over its whole text again, in characters. What the keys
/// write needs a few such walks, and groups whose values are numbers none. Other texts need one for
/// every group, and a long one would go on for minutes: it ends as impossible instead, after a
/// tenth of a second or two. A thousand such groups of a few characters are not yet too many.
class Effort {
public:
    /// False when so much is no longer left.
    bool spend(std::size_t characters) {
        if (characters > left_)
            return false;
        left_ -= characters;
        return true;
    }

private:
    std::size_t left_ = std::size_t{1} << 22;
};

} // namespace calculator
