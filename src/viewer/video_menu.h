#pragma once

#include "coursedata/recordset.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace viewer {

/// Captions of the video menu with this code; none for the name of a film. "VIDEO" names a menu
/// where the page lets choose among the films of other pages and has none of its own.
QStringList videoMenuCaptions(const QString& code);

/// The page code that an entry leads to: that of the first page whose title is the caption, to the
/// letter, or `summaryCode` where the caption has less than three characters. Nothing when no page
/// has the title, or without records (null).
std::optional<QString> videoMenuTarget(const QString& caption, const coursedata::Recordset* cours,
                                       const QString& summaryCode);

} // namespace viewer
