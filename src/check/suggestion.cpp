#include "check/suggestion.h"

#include "check/directive_shape.h"
#include "check/source.h"

#include <QList>

#include <algorithm>

namespace check {

namespace {

/// Slips that a keyword of this length may hold: with more, it would be any other word.
int mostSlips(qsizetype length) {
    return length < 4 ? 1 : 2;
}

/// The longest form that the directive is but for letter case and blanks before it.
std::optional<QString> inCapitals(QStringView directive) {
    const QString trimmed = directive.trimmed().toString();
    const markup::Directive* best = nullptr;
    for (const markup::Directive& form : markup::directiveTable()) {
        const auto length = form.keyword.size();
        if (form.matches(trimmed.left(length).toUpper() + trimmed.mid(length)) &&
            (!best || length > best->keyword.size()))
            best = &form;
    }
    if (!best)
        return std::nullopt;
    return best->keyword.toString() + trimmed.mid(best->keyword.size());
}

} // namespace

int distance(QStringView a, QStringView b) {
    QList<QList<int>> rows(a.size() + 1, QList<int>(b.size() + 1));
    for (qsizetype i = 0; i <= a.size(); ++i)
        rows[i][0] = static_cast<int>(i);
    for (qsizetype j = 0; j <= b.size(); ++j)
        rows[0][j] = static_cast<int>(j);
    for (qsizetype i = 1; i <= a.size(); ++i)
        for (qsizetype j = 1; j <= b.size(); ++j) {
            const int other = a[i - 1] == b[j - 1] ? 0 : 1;
            rows[i][j] =
                std::min({rows[i - 1][j] + 1, rows[i][j - 1] + 1, rows[i - 1][j - 1] + other});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
                rows[i][j] = std::min(rows[i][j], rows[i - 2][j - 2] + 1);
        }
    return rows[a.size()][b.size()];
}

std::optional<Suggestion> suggestionFor(QStringView directive) {
    if (const auto capitals = inCapitals(directive); capitals && isWellShaped(*capitals))
        return Suggestion{*capitals, true};
    const QString word = directive.trimmed().toString();
    std::optional<Suggestion> best;
    int least = 3;
    for (const markup::Directive& form : markup::directiveTable()) {
        const auto length = form.keyword.size();
        for (const qsizetype taken : {length, length - 1, length + 1}) {
            if (taken < 2 || taken > word.size())
                continue;
            const int slips = distance(word.left(taken).toUpper(), form.keyword);
            const QString meant = form.keyword.toString() + word.mid(taken);
            if (slips <= mostSlips(length) && slips < least && isWellShaped(meant)) {
                least = slips;
                best = Suggestion{meant, false};
            }
        }
    }
    return best;
}

} // namespace check
