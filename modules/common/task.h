#pragma once

#include "common/entry_file.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace common {

enum class Answer { NoNumber, Wrong, Right };

/// What an exercise asks of the pupil, whatever the module: a question that a number answers. The
/// situation that it is asked in is the module's.
struct Task {
    QString title;
    QStringList statement; ///< paragraphs
    QString question;
    double answer = 0;
    double tolerance = 0; ///< in the same unit; both ends still right
    QString unit;
    QString whenRight; ///< explanations
    QString whenWrong;
    bool hidesResults = false; ///< until a right answer was given

    /// What the pupil typed, with or without the unit behind it.
    Answer judge(const QString& typed) const;
};

/// Takes an entry that is not the task's own: of the situation. False when it makes no sense.
using TakeEntry = std::function<bool(const Entry&)>;

/// Reads a file of modules/README.md's format. False, with one French sentence in `why`, when it is
/// not there, or anything in it is missing, unknown or out of range.
bool readTask(const QString& path, Task& task, const TakeEntry& situation, QString& why);

/// The same of a file's text.
bool parseTask(const QString& text, Task& task, const TakeEntry& situation, QString& why);

/// An exercise, a task with a situation of which `take` takes entries, from its file; absent, with
/// the reason, as above.
template <class Exercise>
std::optional<Exercise> readExercise(const QString& path, bool (*take)(Exercise&, const Entry&),
                                     QString& why) {
    Exercise exercise;
    const auto situation = [&](const Entry& entry) { return take(exercise, entry); };
    return readTask(path, exercise, situation, why) ? std::optional(exercise) : std::nullopt;
}

} // namespace common
