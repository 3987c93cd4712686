#pragma once

#include "page/numbers.h"

#include <QStringView>

#include <optional>

namespace markup {

// Arguments of a directive stand at fixed places. `d` is the directive without its leading "##";
// positions count from 1. A directive too short for its places gives what is there.

inline QStringView lastCharacters(QStringView d, qsizetype count) {
    return d.last(qMin(count, d.size()));
}

inline QStringView charactersFrom(QStringView d, qsizetype position) {
    return d.sliced(qMin(position - 1, d.size()));
}

inline QStringView characterAt(QStringView d, qsizetype position) {
    return charactersFrom(d, position).first(position <= d.size() ? 1 : 0);
}

/// Two texts with a "#" between them, split at the last one. A "#" in the last place does not
/// count: what follows may not be empty. Nothing when there is none.
struct SplitArgument {
    QStringView before; ///< what stands between the keyword and the "#"
    QStringView after;
};
inline std::optional<SplitArgument> splitAtLastSharp(QStringView d, qsizetype keywordLength) {
    for (qsizetype i = d.size() - 2; i >= keywordLength; --i)
        if (d[i] == u'#')
            return SplitArgument{d.sliced(keywordLength, i - keywordLength), d.sliced(i + 1)};
    return std::nullopt;
}

/// The number in the last characters; 0 when they start with none.
inline double lastNumber(QStringView d, qsizetype count) {
    return page::leadingNumber(lastCharacters(d, count));
}

} // namespace markup
