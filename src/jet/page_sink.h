#pragma once

#include "jet/bytes.h"
#include "jet/result.h"

#include <cstdint>

namespace jet {

/// Where the changed pages of a database go, one after the other.
class PageSink {
public:
    virtual ~PageSink() = default;
    /// Puts one whole page in its place; a number just past the end of the file adds it.
    virtual Result<void> write(std::uint32_t number, Bytes page) = 0;
    /// Returns when all that was written is on the disk.
    virtual Result<void> sync() = 0;
    /// Gives the file back the length, in bytes, it had when it was opened.
    virtual void cutBack() = 0;
};

} // namespace jet
