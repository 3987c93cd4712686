#include "lens/exercise.h"

#include "common/french_number.h"
#include "common/words.h"

namespace lens {

namespace {

using common::Entry;

bool takeLocks(Exercise& exercise, std::u16string_view keys) {
    for (const std::u16string_view key : common::splitAtBlanks(keys)) {
        const Quantity* found = common::ofKey(kQuantities, key);
        if (found == nullptr)
            return false;
        exercise.locked.insert(found->parameter);
    }
    return true;
}

bool takeNumber(Arrangement& arrangement, const Entry& entry) {
    const std::optional<double> number = common::numberFrom(entry.value);
    const Quantity* found = common::ofKey(kQuantities, entry.key);
    if (!number || found == nullptr)
        return false;
    // A diverging lens has a negative focal length.
    const bool diverging = found->parameter == Parameter::FocalLength && *number < 0;
    const double value = diverging ? -*number : *number;
    if (found->held(value) != value)
        return false;
    arrangement.*found->value = value;
    if (found->parameter == Parameter::FocalLength)
        arrangement.kind = diverging ? Kind::Diverging : Kind::Converging;
    return true;
}

bool take(Exercise& exercise, const Entry& entry) {
    if (entry.key == u"verrou")
        return takeLocks(exercise, entry.value);
    if (entry.key == u"cache")
        return exercise.hidesLens = entry.value == u"lentille";
    return takeNumber(exercise.arrangement, entry);
}

} // namespace

std::optional<Exercise> parseExercise(std::u16string_view text, std::u16string& why) {
    return common::parseExercise(text, take, why);
}

} // namespace lens
