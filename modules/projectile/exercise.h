#pragma once

#include "common/task.h"
#include "projectile/situation.h"

#include <QString>

#include <optional>

namespace projectile {

/// A task in a situation of which some numbers may be changed and others not.
struct Exercise : common::Task, Situation {};

/// Reads a file of modules/README.md's format. Absent, with one French sentence in `why`, when it
/// is not there, or anything in it is missing, unknown or out of range.
std::optional<Exercise> readExercise(const QString& path, QString& why);

/// The same of a file's text.
std::optional<Exercise> parseExercise(const QString& text, QString& why);

} // namespace projectile
