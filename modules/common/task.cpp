#include "common/task.h"

#include "common/french_number.h"

#include <QFileInfo>

#include <cmath>
#include <optional>
#include <vector>

namespace common {

namespace {

/// Numbers that come out of a calculation are as close as this to those typed.
constexpr double kRounding = 1e-9;

/// Turns the entries of a file, one by one, into a task. Each step says whether it understood.
class Reader {
public:
    explicit Reader(Task& task) : task_(task) {}

    bool take(const Entry& entry) {
        return takeText(entry) || takeNumber(entry) || takeHiding(entry);
    }

    bool isComplete() const {
        return !task_.title.isEmpty() && !task_.statement.isEmpty() && !task_.question.isEmpty() &&
               hasAnswer_ && hasTolerance_;
    }

private:
    bool takeText(const Entry& entry) {
        const struct {
            const char16_t* key;
            QString Task::*text;
        } kTexts[] = {{u"titre", &Task::title},
                      {u"question", &Task::question},
                      {u"unite", &Task::unit},
                      {u"juste", &Task::whenRight},
                      {u"faux", &Task::whenWrong}};
        for (const auto& known : kTexts) {
            if (entry.key == QStringView(known.key)) {
                task_.*known.text = entry.value;
                return true;
            }
        }
        if (entry.key != QStringLiteral("enonce"))
            return false;
        task_.statement.append(entry.value);
        return true;
    }

    bool takeNumber(const Entry& entry) {
        const std::optional<double> number = numberFrom(entry.value);
        if (!number)
            return false;
        if (entry.key == QStringLiteral("reponse")) {
            task_.answer = *number;
            return hasAnswer_ = true;
        }
        if (entry.key == QStringLiteral("tolerance")) {
            task_.tolerance = *number;
            return hasTolerance_ = *number >= 0;
        }
        return false;
    }

    bool takeHiding(const Entry& entry) {
        const bool hides =
            entry.key == QStringLiteral("cache") && entry.value == QStringLiteral("résultats");
        task_.hidesResults = task_.hidesResults || hides;
        return hides;
    }

    Task& task_;
    bool hasAnswer_ = false;
    bool hasTolerance_ = false;
};

bool readEntriesInto(Task& task, const std::optional<std::vector<Entry>>& entries,
                     const TakeEntry& situation, QString& why) {
    if (!entries) {
        why = QStringLiteral("ce n’est pas un fichier d’exercice.");
        return false;
    }
    Reader reader(task);
    for (const Entry& entry : *entries) {
        if (!reader.take(entry) && !situation(entry)) {
            why = QStringLiteral("la ligne %1 («\u00A0%2\u00A0») n’a pas de sens.")
                      .arg(entry.line)
                      .arg(entry.key.left(20));
            return false;
        }
    }
    if (!reader.isComplete())
        why = QStringLiteral("il lui manque un titre, un énoncé, une question ou une réponse.");
    return reader.isComplete();
}

} // namespace

Answer Task::judge(const QString& typed) const {
    QString text = typed.trimmed();
    if (!unit.isEmpty() && text.endsWith(unit))
        text.chop(unit.size());
    const std::optional<double> number = numberFrom(text);
    if (!number)
        return Answer::NoNumber;
    return std::fabs(*number - answer) <= tolerance + kRounding ? Answer::Right : Answer::Wrong;
}

bool readTask(const QString& path, Task& task, const TakeEntry& situation, QString& why) {
    if (!QFileInfo::exists(path)) {
        why = QStringLiteral("il n’est pas dans le dossier du cours.");
        return false;
    }
    return readEntriesInto(task, readEntries(path), situation, why);
}

bool parseTask(const QString& text, Task& task, const TakeEntry& situation, QString& why) {
    return readEntriesInto(task, parseEntries(text), situation, why);
}

} // namespace common
