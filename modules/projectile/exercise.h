#pragma once

#include "common/task.h"
#include "projectile/situation.h"

#include <optional>

namespace projectile {

/// A task in a situation of which some numbers may be changed and others not.
struct Exercise : common::Task, Situation {};

/// Reads the text of a file of modules/README.md's format. Absent, with one French sentence in
/// `why`, when anything in it is missing, unknown or out of range.
std::optional<Exercise> parseExercise(std::u16string_view text, std::u16string& why);

} // namespace projectile
