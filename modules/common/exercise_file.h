#pragma once

#include <QString>

#include <optional>
#include <string>
#include <string_view>

namespace common {

/// The text of the exercise at `path`; absent, with one French sentence in `why`, when it is not
/// there or is no such file.
std::optional<std::u16string> readExerciseFile(const QString& path, QString& why);

/// The exercise of a file, which `parse` reads; absent, with a reason, as above or when `parse`
/// does not understand it.
template <class Exercise>
std::optional<Exercise> readExercise(const QString& path, QString& why,
                                     std::optional<Exercise> (*parse)(std::u16string_view,
                                                                      std::u16string&)) {
    const std::optional<std::u16string> text = readExerciseFile(path, why);
    if (!text)
        return std::nullopt;
    std::u16string reason;
    std::optional<Exercise> exercise = parse(*text, reason);
    why = QString::fromStdU16String(reason);
    return exercise;
}

} // namespace common
