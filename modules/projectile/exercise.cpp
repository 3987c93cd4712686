#include "projectile/exercise.h"

#include "common/french_number.h"

#include <algorithm>
#include <cmath>

namespace projectile {

namespace {

using common::Entry;

/// More would hide the drawing; the exercises have one.
constexpr std::size_t kMostLandmarks = 8;

/// In any letter case.
std::optional<World> worldNamed(const QString& name) {
    for (const World& world : kWorlds)
        if (QString::fromUtf16(world.name).compare(name, Qt::CaseInsensitive) == 0)
            return world;
    return std::nullopt;
}

/// Turns the entries of a situation, one by one, into that of an exercise. Each step says whether
/// it understood.
class Reader {
public:
    bool take(const Entry& entry) { return takeNumber(entry) || takeSituation(entry); }

    Exercise exercise;

private:
    bool takeNumber(const Entry& entry) {
        const std::optional<double> number = common::numberFrom(entry.value);
        if (!number)
            return false;
        const Quantity* found = quantityOf(entry.key);
        if (found == nullptr || *number < found->least || *number > found->most)
            return false;
        exercise.launch.*found->value = *number;
        return true;
    }

    bool takeSituation(const Entry& entry) {
        if (entry.key == QStringLiteral("astre"))
            return takeWorld(entry.value);
        if (entry.key == QStringLiteral("frottements"))
            return takeDrag(entry.value);
        if (entry.key == QStringLiteral("verrou"))
            return takeLocks(entry.value);
        if (entry.key == QStringLiteral("repere"))
            return takeLandmark(entry.value);
        return false;
    }

    bool takeWorld(const QString& name) {
        const std::optional<World> world = worldNamed(name);
        if (!world)
            return false;
        exercise.launch.gravity = world->gravity;
        exercise.launch.airDensity = world->airDensity;
        return true;
    }

    bool takeDrag(const QString& name) {
        const QStringList names = {QStringLiteral("aucun"), QStringLiteral("linéaires"),
                                   QStringLiteral("quadratiques")};
        const qsizetype which = names.indexOf(name);
        if (which < 0)
            return false;
        exercise.launch.drag = static_cast<Drag>(which);
        return true;
    }

    bool takeLocks(const QString& keys) {
        for (const QString& key : keys.split(u' ', Qt::SkipEmptyParts)) {
            const Quantity* found = quantityOf(key);
            if (found != nullptr)
                exercise.locked.insert(found->parameter);
            else if (key == QStringLiteral("frottements"))
                exercise.dragLocked = true;
            else
                return false;
        }
        return true;
    }

    bool takeLandmark(const QString& text) {
        const auto x = common::numberFrom(text.section(u' ', 0, 0));
        const auto y = common::numberFrom(text.section(u' ', 1, 1));
        const QString name = text.section(u' ', 2);
        const bool fits = x && y && std::fabs(*x) <= kFarthest && std::fabs(*y) <= kFarthest &&
                          exercise.landmarks.size() < kMostLandmarks;
        if (fits)
            exercise.landmarks.push_back({*x, *y, name.toStdU16String()});
        return fits;
    }

    static const Quantity* quantityOf(const QString& key) {
        const auto* found =
            std::find_if(kQuantities.begin(), kQuantities.end(),
                         [&](const Quantity& one) { return key == QStringView(one.key); });
        return found == kQuantities.end() ? nullptr : found;
    }

    /// Beyond any throw of the sliders' limits; m.
    static constexpr double kFarthest = 10'000;
};

} // namespace

std::optional<Exercise> readExercise(const QString& path, QString& why) {
    Reader reader;
    const auto take = [&](const Entry& entry) { return reader.take(entry); };
    return common::readTask(path, reader.exercise, take, why) ? std::optional(reader.exercise)
                                                              : std::nullopt;
}

std::optional<Exercise> parseExercise(const QString& text, QString& why) {
    Reader reader;
    const auto take = [&](const Entry& entry) { return reader.take(entry); };
    return common::parseTask(text, reader.exercise, take, why) ? std::optional(reader.exercise)
                                                               : std::nullopt;
}

} // namespace projectile
