#pragma once

#include <filesystem>
#include <optional>

namespace coursedata {

// File names of a course's databases. They are written like this and found in any letter case.
inline constexpr char kCourseFile[] = "Zekx.mdb";
inline constexpr char kExerciseFile[] = "qekx.mdb";

/// The database `name`, one of the two above, of the course in `directory`: the exact name when it
/// is there, otherwise the first, in code point order, that differs in letter case. Nothing when
/// no regular file of the name stands in the directory in the end, or when `directory` is empty.
std::optional<std::filesystem::path> findDatabase(const std::filesystem::path& directory,
                                                  const char* name);

} // namespace coursedata
