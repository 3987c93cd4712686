#pragma once

#include <QString>

#include <ostream>

/// How GoogleTest prints texts; without it a failure shows them as bytes.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}
