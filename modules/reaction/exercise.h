#pragma once

#include "common/task.h"
#include "reaction/mixture.h"

#include <optional>

namespace reaction {

/// A task about a mixture of which some amounts may be changed and others not. Its reaction is
/// always given.
struct Exercise : common::Task {
    Mixture mixture;
    std::array<bool, kReactants> locked = {};
};

/// Reads the text of a file of modules/README.md's format. Absent, with one French sentence in
/// `why`, when anything in it is missing, unknown or out of range.
std::optional<Exercise> parseExercise(std::u16string_view text, std::u16string& why);

} // namespace reaction
