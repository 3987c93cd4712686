#pragma once

#include "common/entries.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace common {

enum class Answer { NoNumber, Wrong, Right };

/// What an exercise asks of the pupil, whatever the module: a question that a number answers. The
/// situation that it is asked in is the module's.
struct Task {
    std::u16string title;
    std::vector<std::u16string> statement; ///< paragraphs
    std::u16string question;
    double answer = 0;
    double tolerance = 0; ///< in the same unit; both ends still right
    std::u16string unit;
    std::u16string whenRight; ///< explanations
    std::u16string whenWrong;
    bool hidesResults = false; ///< until a right answer was given

    /// What the pupil typed, with or without the unit behind it.
    Answer judge(std::u16string_view typed) const;

    /// What the pupil is told of such an answer.
    std::u16string verdict(Answer answer) const;
};

/// Takes an entry that is not the task's own: of the situation. False when it makes no sense.
using TakeEntry = std::function<bool(const Entry&)>;

/// Reads the text of a file of modules/README.md's format. False, with one French sentence in
/// `why`, when anything in it is missing, unknown or out of range.
bool parseTask(std::u16string_view text, Task& task, const TakeEntry& situation,
               std::u16string& why);

/// An exercise, a task with a situation of which `take` takes entries; absent, with the reason, as
/// above.
template <class Exercise>
std::optional<Exercise> parseExercise(std::u16string_view text,
                                      bool (*take)(Exercise&, const Entry&), std::u16string& why) {
    Exercise exercise;
    const auto situation = [&](const Entry& entry) { return take(exercise, entry); };
    return parseTask(text, exercise, situation, why) ? std::optional(exercise) : std::nullopt;
}

} // namespace common
