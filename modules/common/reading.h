#pragma once

#include <QString>

#include <vector>

class QPainter;

namespace common {

/// A quantity and what is read of it.
struct Reading {
    QString name;        ///< a formula
    QString value;       ///< plain, with its unit
    QString spoken = {}; ///< the name as a screen reader says it; empty when that is the same
};

/// Readings with a name in common, `perLine` at most beside each other.
struct ReadingGroup {
    QString name;
    std::vector<Reading> readings;
    std::size_t perLine;
};

inline constexpr int kReadingHeight = 26; ///< of a line, pixels

/// Paints readings behind the name of their group. Returns the top of the next line. Pixels;
/// `width` is that of the whole line.
double paintReadings(QPainter& painter, double top, double width, const ReadingGroup& group);

/// The same for who does not see it: "À l’instant : x = 2,00 m ; y = 3,00 m."
QString readingsInWords(const ReadingGroup& group);

} // namespace common
