#pragma once

#include <QString>

#include <optional>
#include <string>

namespace common {

/// The text of a file of the modules' data (entries.h), UTF-8; absent when it is not there, is no
/// file, or is longer than kLargestFile.
std::optional<std::u16string> readEntryFile(const QString& path);

inline constexpr qint64 kLargestFile = 64 * 1024; ///< bytes; the longest of ours has three thousand

} // namespace common
