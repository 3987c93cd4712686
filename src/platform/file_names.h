#pragma once

#include <QString>

#include <filesystem>
#include <optional>

namespace platform {

/// The bare file name in `name`: what follows the last "\" or "/", without a drive prefix ("D:").
/// The name ends at its first NUL character. Empty when nothing that names a file remains: an
/// empty rest, "." or "..". So a name that comes from a page cannot leave the directory in which
/// it is looked up.
QString lastComponent(const QString& name);

/// The path for the standard library. A text that is no name of a file, such as half a character
/// out of a damaged page, becomes a name that no file has; the library's own conversion would
/// throw.
std::filesystem::path standardPath(const QString& path);

/// Path of the file `name` in `directory`: the exact name when there is one, otherwise the first,
/// in code point order, that differs only in letter case. Hidden files count, directories and
/// devices do not, nor do links that lead out of `bounds` (the directory itself unless another is
/// named, which `directory` starts with): whatever a course names is looked up here, and none of it
/// may be a file from elsewhere. Nothing when there is no such file, or when `name` is not a bare
/// file name.
std::optional<QString> findWithoutCase(const QString& directory, const QString& name,
                                       const QString& bounds = {});

/// The same as findWithoutCase() for a directory, within the one it is looked up in.
std::optional<QString> findFolderWithoutCase(const QString& directory, const QString& name);

} // namespace platform
