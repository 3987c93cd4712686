// What numbers.mjs calls.

#include "text/number_text.h"
#include "text/numeric_reader.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace {

std::array<char16_t, 64> buffer;

} // namespace

#define EXPORTED(name) extern "C" __attribute__((export_name(#name), used))

EXPORTED(textBuffer) char16_t* textBuffer() {
    return buffer.data();
}

/// Puts the text of a number into the buffer and gives its length.
EXPORTED(numberText) std::size_t numberText(double value) {
    const std::u16string text = text::numberText(value);
    return static_cast<std::size_t>(std::copy(text.begin(), text.end(), buffer.begin()) -
                                    buffer.begin());
}

/// Reads the number that the first `length` characters of the buffer begin with.
EXPORTED(leadingNumber) double leadingNumber(std::size_t length) {
    return text::leadingNumber({buffer.data(), length});
}
