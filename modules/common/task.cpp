#include "common/task.h"

#include "common/french_number.h"
#include "common/words.h"

#include <cmath>

namespace common {

namespace {

/// Numbers that come out of a calculation are as close as this to those typed.
constexpr double kRounding = 1e-9;

/// Characters of a key in a message.
constexpr std::size_t kMostOfKey = 20;

/// Turns the entries of a file, one by one, into a task. Each step says whether it understood.
class Reader {
public:
    explicit Reader(Task& task) : task_(task) {}

    bool take(const Entry& entry) {
        return takeText(entry) || takeNumber(entry) || takeHiding(entry);
    }

    bool isComplete() const {
        return !task_.title.empty() && !task_.statement.empty() && !task_.question.empty() &&
               hasAnswer_ && hasTolerance_;
    }

private:
    bool takeText(const Entry& entry) {
        const struct {
            const char16_t* key;
            std::u16string Task::*text;
        } kTexts[] = {{u"titre", &Task::title},
                      {u"question", &Task::question},
                      {u"unite", &Task::unit},
                      {u"juste", &Task::whenRight},
                      {u"faux", &Task::whenWrong}};
        for (const auto& known : kTexts) {
            if (entry.key == known.key) {
                task_.*known.text = entry.value;
                return true;
            }
        }
        if (entry.key != u"enonce")
            return false;
        task_.statement.push_back(entry.value);
        return true;
    }

    bool takeNumber(const Entry& entry) {
        const std::optional<double> number = numberFrom(entry.value);
        if (!number)
            return false;
        if (entry.key == u"reponse") {
            task_.answer = *number;
            return hasAnswer_ = true;
        }
        if (entry.key == u"tolerance") {
            task_.tolerance = *number;
            return hasTolerance_ = *number >= 0;
        }
        return false;
    }

    bool takeHiding(const Entry& entry) {
        const bool hides = entry.key == u"cache" && entry.value == u"résultats";
        task_.hidesResults = task_.hidesResults || hides;
        return hides;
    }

    Task& task_;
    bool hasAnswer_ = false;
    bool hasTolerance_ = false;
};

} // namespace

Answer Task::judge(std::u16string_view typed) const {
    std::u16string_view text = trimmed(typed);
    if (!unit.empty() && text.ends_with(unit))
        text.remove_suffix(unit.size());
    const std::optional<double> number = numberFrom(text);
    if (!number)
        return Answer::NoNumber;
    return std::fabs(*number - answer) <= tolerance + kRounding ? Answer::Right : Answer::Wrong;
}

std::u16string Task::verdict(Answer given) const {
    switch (given) {
    case Answer::Right:
        return u"Juste\u00A0! " + whenRight;
    case Answer::Wrong:
        return u"Ce n’est pas cela. " + whenWrong;
    default:
        return u"Tapez un nombre, par exemple 12,5.";
    }
}

bool parseTask(std::u16string_view text, Task& task, const TakeEntry& situation,
               std::u16string& why) {
    const auto entries = parseEntries(text);
    if (!entries) {
        why = u"ce n’est pas un fichier d’exercice.";
        return false;
    }
    Reader reader(task);
    for (const Entry& entry : *entries) {
        if (!reader.take(entry) && !situation(entry)) {
            why = filled(u"la ligne %1 («\u00A0%2\u00A0») n’a pas de sens.",
                         {decimal(entry.line), entry.key.substr(0, kMostOfKey)});
            return false;
        }
    }
    if (!reader.isComplete())
        why = u"il lui manque un titre, un énoncé, une question ou une réponse.";
    return reader.isComplete();
}

} // namespace common
