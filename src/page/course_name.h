#pragma once

#include <QString>

namespace page {

/// What the main window's caption says, and begins with where a page adds words of its own.
inline const QString kCourseName = QStringLiteral("Orvalente - KAROPE");

} // namespace page
