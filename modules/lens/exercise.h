#pragma once

#include "common/task.h"
#include "lens/arrangement.h"

#include <optional>
#include <set>

namespace lens {

/// A task at a bench of which some numbers may be changed and others not.
struct Exercise : common::Task {
    Arrangement arrangement;
    std::set<Parameter> locked;
    bool hidesLens = false; ///< the focal length is what is looked for: only the screen tells of it

    bool isLocked(Parameter parameter) const { return locked.count(parameter) > 0; }
};

/// Reads the text of a file of modules/README.md's format. Absent, with one French sentence in
/// `why`, when anything in it is missing, unknown or out of range.
std::optional<Exercise> parseExercise(std::u16string_view text, std::u16string& why);

} // namespace lens
