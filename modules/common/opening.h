#pragma once

#include "common/exercise_file.h"

#include <QString>

#include <functional>
#include <optional>

namespace common {

/// What the window of a simulation opens with.
struct Opening {
    QString notice;  ///< a line for the pupil, when the exercise asked for cannot be opened
    QString edition; ///< of the course; may be empty
    std::function<void()> next = {}; ///< opens the exercise after this one; null for the last
};

template <class Exercise>
struct ExerciseOpening : Opening {
    std::optional<Exercise> exercise;
};

/// What a run of a simulation asks its window to show.
struct Asked {
    QString exercise; ///< name of the file; empty for none
    QString path;     ///< where that is; empty when it is not there
    Opening opening;  ///< without a notice
};

/// The line for the pupil: `why` is one French sentence.
QString notOpened(const QString& exercise, const QString& why);

/// `parse` takes the text of an exercise's file, and gives an exercise or a reason.
template <class Exercise>
ExerciseOpening<Exercise> openingOf(const Asked& asked,
                                    std::optional<Exercise> (*parse)(std::u16string_view,
                                                                     std::u16string&)) {
    ExerciseOpening<Exercise> opening{asked.opening, std::nullopt};
    QString why;
    if (!asked.exercise.isEmpty())
        opening.exercise = readExercise(asked.path, why, parse);
    if (!asked.exercise.isEmpty() && !opening.exercise)
        opening.notice = notOpened(asked.exercise, why);
    return opening;
}

} // namespace common
