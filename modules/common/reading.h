#pragma once

#include <QString>

#include <vector>

class QPainter;

namespace common {

/// A quantity and what is read of it.
struct Reading {
    QString name;  ///< a formula
    QString value; ///< plain, with its unit
};

inline constexpr int kReadingHeight = 26; ///< of a line, pixels

/// Paints readings, `perLine` beside each other, behind the name of their group. Returns the top of
/// the next line. Pixels; `width` is that of the whole line.
double paintReadings(QPainter& painter, double top, double width, const QString& group,
                     const std::vector<Reading>& readings, std::size_t perLine);

} // namespace common
