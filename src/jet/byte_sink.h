#pragma once

#include "jet/result.h"

#include <cstdint>
#include <span>

namespace jet {

/// Where a new database goes, piece by piece.
class ByteSink {
public:
    virtual ~ByteSink() = default;

    /// Writes anywhere. A failure stays: state() tells of the first one.
    virtual void writeAt(std::uint64_t offset, std::span<const std::uint8_t> bytes) = 0;
    virtual Result<void> state() const = 0;
    /// To be called once, when all is written: makes it the database it is to be.
    virtual Result<void> putInPlace() = 0;
};

} // namespace jet
