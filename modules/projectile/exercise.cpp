#include "projectile/exercise.h"

#include "common/entry_file.h"
#include "common/french_number.h"

#include <QFileInfo>

#include <algorithm>
#include <cmath>

namespace projectile {

namespace {

using common::Entry;

/// More would hide the drawing; the exercises have one.
constexpr std::size_t kMostLandmarks = 8;

/// Numbers that come out of a calculation are as close as this to those typed.
constexpr double kRounding = 1e-9;

/// In any letter case.
std::optional<World> worldNamed(const QString& name) {
    const auto* found = std::find_if(kWorlds.begin(), kWorlds.end(), [&](const World& world) {
        return QString::fromUtf16(world.name).compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == kWorlds.end() ? std::nullopt : std::optional(*found);
}

/// Turns the entries of a file, one by one, into an exercise. Each step says whether it understood.
class Reader {
public:
    bool take(const Entry& entry) {
        return takeText(entry) || takeNumber(entry) || takeSituation(entry);
    }

    bool isComplete() const {
        return !exercise.title.isEmpty() && !exercise.statement.isEmpty() &&
               !exercise.question.isEmpty() && hasAnswer_ && hasTolerance_;
    }

    Exercise exercise;

private:
    bool takeText(const Entry& entry) {
        const struct {
            const char16_t* key;
            QString Exercise::*text;
        } kTexts[] = {{u"titre", &Exercise::title},
                      {u"question", &Exercise::question},
                      {u"unite", &Exercise::unit},
                      {u"juste", &Exercise::whenRight},
                      {u"faux", &Exercise::whenWrong}};
        for (const auto& known : kTexts) {
            if (entry.key == QStringView(known.key)) {
                exercise.*known.text = entry.value;
                return true;
            }
        }
        if (entry.key != QStringLiteral("enonce"))
            return false;
        exercise.statement.append(entry.value);
        return true;
    }

    bool takeNumber(const Entry& entry) {
        const std::optional<double> number = common::numberFrom(entry.value);
        if (!number)
            return false;
        if (entry.key == QStringLiteral("reponse")) {
            exercise.answer = *number;
            return hasAnswer_ = true;
        }
        if (entry.key == QStringLiteral("tolerance")) {
            exercise.tolerance = *number;
            return hasTolerance_ = *number >= 0;
        }
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
        if (entry.key == QStringLiteral("cache"))
            return exercise.hidesResults = entry.value == QStringLiteral("résultats");
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

    bool hasAnswer_ = false;
    bool hasTolerance_ = false;
};

std::optional<Exercise> exerciseOf(const std::vector<Entry>& entries, QString& why) {
    Reader reader;
    for (const Entry& entry : entries) {
        if (!reader.take(entry)) {
            why = QStringLiteral("la ligne %1 («\u00A0%2\u00A0») n’a pas de sens.")
                      .arg(entry.line)
                      .arg(entry.key.left(20));
            return std::nullopt;
        }
    }
    if (!reader.isComplete()) {
        why = QStringLiteral("il lui manque un titre, un énoncé, une question ou une réponse.");
        return std::nullopt;
    }
    return reader.exercise;
}

const QString kNoText = QStringLiteral("ce n’est pas un fichier d’exercice.");

} // namespace

Answer Exercise::judge(const QString& typed) const {
    QString text = typed.trimmed();
    if (!unit.isEmpty() && text.endsWith(unit))
        text.chop(unit.size());
    const std::optional<double> number = common::numberFrom(text);
    if (!number)
        return Answer::NoNumber;
    return std::fabs(*number - answer) <= tolerance + kRounding ? Answer::Right : Answer::Wrong;
}

std::optional<Exercise> readExercise(const QString& path, QString& why) {
    if (!QFileInfo::exists(path)) {
        why = QStringLiteral("il n’est pas dans le dossier du cours.");
        return std::nullopt;
    }
    const auto entries = common::readEntries(path);
    why = kNoText;
    return entries ? exerciseOf(*entries, why) : std::nullopt;
}

std::optional<Exercise> parseExercise(const QString& text, QString& why) {
    const auto entries = common::parseEntries(text);
    why = kNoText;
    return entries ? exerciseOf(*entries, why) : std::nullopt;
}

} // namespace projectile
