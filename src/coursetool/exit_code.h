#pragma once

namespace coursetool {

/// Exit status of the tool; its numbers are documented and stay.
enum class ExitCode {
    Fine = 0,
    Faults = 1,    ///< in the course, or in a file it consists of
    WrongCall = 2, ///< nothing was done
    /// What was asked for could not be written: a full disc, no right. The number that systems have
    /// for it (EX_IOERR), as those below are taken, by `calc` for its own errors among others.
    NotWritten = 74
};

} // namespace coursetool
