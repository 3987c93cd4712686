#pragma once

#include "jet/bytes.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace jet {

/// Appends text to a string as UTF-8, in pieces of several forms; unpaired surrogates become
/// U+FFFD.
class Utf8Writer {
public:
    explicit Utf8Writer(std::string& out) : out_(out) {}

    void unit(char16_t unit);
    void ascii(const std::uint8_t* bytes, std::size_t count);
    /// UTF-16LE; a byte left over is dropped.
    void wide(Bytes units);
    /// To be called last: a high surrogate may still wait for its other half.
    void finish();

private:
    char* put(char16_t unit, char* to);
    char* putStretch(Bytes units, char* to);

    std::string& out_;
    char16_t high_ = 0;
};

} // namespace jet
