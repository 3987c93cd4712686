#pragma once

#include "jet/bytes.h"
#include "jet/text_sink.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace jet {

/// How the bytes of a text value are to be read.
enum class TextForm {
    Windows1252, ///< Jet 3; other code pages are read as if they were this one
    Utf16,       ///< Jet 4, fixed length: never compressed
    Compressible ///< Jet 4: UTF-16, or the compressed form when it starts with FF FE
};

/// Appends the text to `out` as it is stored, unpaired surrogates and NUL included.
void decodeText(Bytes bytes, TextForm form, std::u16string& out);
/// Gives the text to `out` as it is stored.
void decodeText(Bytes bytes, TextForm form, TextSink& out);

/// The stored form of a text: compressed when that is allowed, shorter and safe with every reader.
/// Nothing for a text that cannot be told from a compressed one: U+FEFF first, and not compressed.
std::optional<std::vector<std::uint8_t>> encodeText(std::u16string_view text, bool compressible);

/// The stored form in Jet 3. Nothing for a text with a character that Windows-1252 lacks.
std::optional<std::vector<std::uint8_t>> encodeWindows1252(std::u16string_view text);

} // namespace jet
