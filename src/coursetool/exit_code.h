#pragma once

namespace coursetool {

/// Exit status of the tool; its numbers are documented and stay.
enum class ExitCode {
    Fine = 0,
    Faults = 1,   ///< in the course, or in a file it consists of
    WrongCall = 2 ///< nothing was done
};

} // namespace coursetool
