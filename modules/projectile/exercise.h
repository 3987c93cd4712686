#pragma once

#include "projectile/situation.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace projectile {

enum class Answer { NoNumber, Wrong, Right };

/// A task for the pupil: a situation, of which some numbers may be changed and others not, and a
/// question that a number answers.
struct Exercise : Situation {
    QString title;
    QStringList statement; ///< paragraphs
    QString question;
    bool hidesResults = false; ///< until a right answer was given

    double answer = 0;
    double tolerance = 0; ///< in the same unit; both ends still right
    QString unit;
    QString whenRight; ///< explanations
    QString whenWrong;

    /// What the pupil typed, with or without the unit behind it.
    Answer judge(const QString& typed) const;
};

/// Reads a file of modules/README.md's format. Absent, with one French sentence in `why`, when it
/// is not there, or anything in it is missing, unknown or out of range.
std::optional<Exercise> readExercise(const QString& path, QString& why);

/// The same of a file's text.
std::optional<Exercise> parseExercise(const QString& text, QString& why);

} // namespace projectile
