#pragma once

#include "coursetool/report.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace coursetool {

/// Largest source of one page or question. No page comes near it; it keeps a stray file, a video
/// with the wrong ending say, from being taken in whole.
inline constexpr std::uintmax_t kMaxSourceBytes = 64u << 20;

/// What some editors put before a text in UTF-8.
inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// The bytes of a file as they stand. A fault when it cannot be read or is larger than
/// kMaxSourceBytes.
std::optional<std::string> readBytes(const std::filesystem::path& file, Report& report);

/// Names each line that is not UTF-8, at the first character that is wrong.
void checkUtf8(std::string_view text, const std::string& file, Report& report);

/// A source: UTF-8, its lines ended by LF. CR LF, as editors of Windows write it, counts as LF, and
/// a byte order mark at the start is passed over. Other carriage returns and bytes that are no
/// UTF-8 are faults, each named with its line.
std::optional<std::string> readSource(const std::filesystem::path& file, Report& report);
/// The same of bytes that were read from `file`.
std::optional<std::string> sourceOfBytes(std::string_view bytes, const std::string& file,
                                         Report& report);

// Text lines of three plus signs would end a part of a source, so they are written with a backslash
// before them, which reading takes away again (one of however many there are).

inline constexpr std::string_view kFence = "+++";

/// A text of the database with CR LF as a part of a source with LF. `clean` becomes false when it
/// holds a CR or LF of its own, which turns into a line end.
std::string toSourceText(std::string_view databaseText, bool& clean);

/// The way back.
std::string toDatabaseText(std::string_view sourceText);

} // namespace coursetool
