#pragma once

#include "jet/bytes.h"

#include <cstddef>
#include <cstdint>

namespace jet {

/// Takes the characters of a text in their order, in the pieces in which they are stored. The bytes
/// are gone after each call.
class TextSink {
public:
    virtual ~TextSink() = default;

    virtual void unit(char16_t unit) = 0;
    virtual void ascii(const std::uint8_t* bytes, std::size_t count) = 0;
    /// UTF-16LE, unpaired surrogates and NUL included; a byte left over is to be dropped.
    virtual void wide(Bytes units) = 0;
};

} // namespace jet
