#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace common {

/// One line "key = value" of a file.
struct Entry {
    QString key;
    QString value;
    int line = 0; ///< counted from 1
};

/// The plain text format of the modules' data: UTF-8, one "key = value" a line, blanks around both
/// left aside; empty lines and lines that start with "#" say nothing. A key may come several times.
///
/// Reading fails, with absence, on a file that is not there, is longer than kLargestFile or has a
/// line without "=" or without a key: half a file is worse than none.
inline constexpr qint64 kLargestFile = 64 * 1024; ///< bytes; the longest of ours has three thousand

std::optional<std::vector<Entry>> readEntries(const QString& path);
std::optional<std::vector<Entry>> parseEntries(const QString& text);

} // namespace common
