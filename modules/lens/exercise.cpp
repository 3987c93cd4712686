#include "lens/exercise.h"

#include "common/french_number.h"

#include <algorithm>

namespace lens {

namespace {

using common::Entry;

const Quantity* quantityOf(const QString& key) {
    const auto* found =
        std::find_if(kQuantities.begin(), kQuantities.end(),
                     [&](const Quantity& one) { return key == QStringView(one.key); });
    return found == kQuantities.end() ? nullptr : found;
}

bool takeLocks(Exercise& exercise, const QString& keys) {
    for (const QString& key : keys.split(u' ', Qt::SkipEmptyParts)) {
        const Quantity* found = quantityOf(key);
        if (found == nullptr)
            return false;
        exercise.locked.insert(found->parameter);
    }
    return true;
}

bool takeNumber(Arrangement& arrangement, const Entry& entry) {
    const std::optional<double> number = common::numberFrom(entry.value);
    const Quantity* found = quantityOf(entry.key);
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
    if (entry.key == QStringLiteral("verrou"))
        return takeLocks(exercise, entry.value);
    if (entry.key == QStringLiteral("cache"))
        return exercise.hidesLens = entry.value == QStringLiteral("lentille");
    return takeNumber(exercise.arrangement, entry);
}

} // namespace

std::optional<Exercise> readExercise(const QString& path, QString& why) {
    return common::readExercise(path, take, why);
}

} // namespace lens
