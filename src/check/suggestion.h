#pragma once

#include <QString>

#include <optional>

namespace check {

/// The directive that was likely meant by one that no form matches, whole, with what follows its
/// keyword. Nothing when none is near.
struct Suggestion {
    QString directive;
    bool isCertain = false; ///< only letter case or blanks are different
};
std::optional<Suggestion> suggestionFor(QStringView directive);

/// How many letters must be changed, added, left out or swapped with the next one to make one word
/// of another.
int distance(QStringView a, QStringView b);

} // namespace check
