#pragma once

#include <QString>

#include <cstdint>

namespace shell {

/// SharedState::DisplayWarningMode while the warning ends the program or repeats.
inline constexpr std::int16_t kBlockingWarning = 1;

/// What the display warning says and how it can be left.
struct DisplayWarningWords {
    QString text;   ///< its lines are separated by CR LF
    QString answer; ///< caption of the button that answers the warning
};

/// The words in a mode: 1 for a screen that is too narrow, 2 for advice; those of the bare window
/// in any other.
DisplayWarningWords displayWarningWords(std::int16_t mode);

} // namespace shell
