#pragma once

#include "platform/numbers.h"

#include <QStringView>

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

/// The number in the last characters; 0 when they start with none.
inline double lastNumber(QStringView d, qsizetype count) {
    return platform::leadingNumber(lastCharacters(d, count));
}

} // namespace markup
