#include "reaction/exercise.h"

#include "common/french_number.h"

namespace reaction {

namespace {

using common::Entry;

/// Place of the reactant that a key of a file names: "n1", "n2".
std::optional<std::size_t> reactantOf(const QString& key) {
    if (key == QStringLiteral("n1"))
        return 0;
    if (key == QStringLiteral("n2"))
        return 1;
    return std::nullopt;
}

bool takeLocks(Exercise& exercise, const QString& keys) {
    for (const QString& key : keys.split(u' ', Qt::SkipEmptyParts)) {
        const auto reactant = reactantOf(key);
        if (!reactant)
            return false;
        exercise.locked.at(*reactant) = true;
    }
    return true;
}

bool take(Exercise& exercise, const Entry& entry) {
    if (entry.key == QStringLiteral("verrou"))
        return takeLocks(exercise, entry.value);
    if (entry.key == QStringLiteral("reaction")) {
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

std::optional<Exercise> readExercise(const QString& path, QString& why) {
    return common::readExercise(path, take, why);
}

} // namespace reaction
