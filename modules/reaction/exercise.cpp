#include "reaction/exercise.h"

#include "common/french_number.h"
#include "common/words.h"

namespace reaction {

namespace {

using common::Entry;

/// Place of the reactant that a key of a file names: "n1", "n2".
std::optional<std::size_t> reactantOf(std::u16string_view key) {
    if (key == u"n1")
        return 0;
    if (key == u"n2")
        return 1;
    return std::nullopt;
}

bool takeLocks(Exercise& exercise, std::u16string_view keys) {
    for (const std::u16string_view key : common::splitAtBlanks(keys)) {
        const auto reactant = reactantOf(key);
        if (!reactant)
            return false;
        exercise.locked.at(*reactant) = true;
    }
    return true;
}

bool take(Exercise& exercise, const Entry& entry) {
    if (entry.key == u"verrou")
        return takeLocks(exercise, entry.value);
    if (entry.key == u"reaction") {
        const Reaction* found = reactionOf(entry.value);
        if (found != nullptr)
            exercise.mixture.reaction = found;
        return found != nullptr;
    }
    const auto reactant = reactantOf(entry.key);
    const auto number = common::numberFrom(entry.value);
    if (!reactant || !number || kAmount.held(*number) != *number)
        return false;
    exercise.mixture.initial.at(*reactant) = *number;
    return true;
}

} // namespace

std::optional<Exercise> parseExercise(std::u16string_view text, std::u16string& why) {
    return common::parseExercise(text, take, why);
}

} // namespace reaction
