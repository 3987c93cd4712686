#include "projectile/exercise.h"

#include "common/french_number.h"
#include "common/words.h"
#include "text/letters.h"

#include <algorithm>
#include <cmath>

namespace projectile {

namespace {

using common::Entry;

/// More would hide the drawing; the exercises have one.
constexpr std::size_t kMostLandmarks = 8;

/// In any letter case.
std::optional<World> worldNamed(std::u16string_view name) {
    const auto isSame = [](char16_t a, char16_t b) {
        return text::lowerCase(a) == text::lowerCase(b);
    };
    for (const World& world : kWorlds)
        if (std::ranges::equal(std::u16string_view(world.name), name, isSame))
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
        const Quantity* found = common::ofKey(kQuantities, entry.key);
        if (found == nullptr || *number < found->least || *number > found->most)
            return false;
        exercise.launch.*found->value = *number;
        return true;
    }

    bool takeSituation(const Entry& entry) {
        if (entry.key == u"astre")
            return takeWorld(entry.value);
        if (entry.key == u"frottements")
            return takeDrag(entry.value);
        if (entry.key == u"verrou")
            return takeLocks(entry.value);
        if (entry.key == u"repere")
            return takeLandmark(entry.value);
        return false;
    }

    bool takeWorld(std::u16string_view name) {
        const std::optional<World> world = worldNamed(name);
        if (!world)
            return false;
        exercise.launch.gravity = world->gravity;
        exercise.launch.airDensity = world->airDensity;
        return true;
    }

    bool takeDrag(std::u16string_view name) {
        constexpr std::u16string_view kNames[] = {u"aucun", u"linéaires", u"quadratiques"};
        const auto which = std::ranges::find(kNames, name) - std::begin(kNames);
        if (which == std::ssize(kNames))
            return false;
        exercise.launch.drag = static_cast<Drag>(which);
        return true;
    }

    bool takeLocks(std::u16string_view keys) {
        for (const std::u16string_view key : common::splitAtBlanks(keys)) {
            const Quantity* found = common::ofKey(kQuantities, key);
            if (found != nullptr)
                exercise.locked.insert(found->parameter);
            else if (key == u"frottements")
                exercise.dragLocked = true;
            else
                return false;
        }
        return true;
    }

    bool takeLandmark(std::u16string_view text) {
        const auto word = [&text] {
            const std::size_t end = std::min(text.find(u' '), text.size());
            const std::u16string_view first = text.substr(0, end);
            text.remove_prefix(std::min(end + 1, text.size()));
            return first;
        };
        const auto x = common::numberFrom(word());
        const auto y = common::numberFrom(word());
        const bool fits = x && y && std::fabs(*x) <= kFarthest && std::fabs(*y) <= kFarthest &&
                          exercise.landmarks.size() < kMostLandmarks;
        if (fits)
            exercise.landmarks.push_back({*x, *y, std::u16string(text)});
        return fits;
    }

    /// Beyond any throw of the sliders' limits; m.
    static constexpr double kFarthest = 10'000;
};

} // namespace

std::optional<Exercise> parseExercise(std::u16string_view text, std::u16string& why) {
    Reader reader;
    const auto take = [&](const Entry& entry) { return reader.take(entry); };
    return common::parseTask(text, reader.exercise, take, why) ? std::optional(reader.exercise)
                                                               : std::nullopt;
}

} // namespace projectile
