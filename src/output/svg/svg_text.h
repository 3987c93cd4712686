#pragma once

#include <QRgb>
#include <QString>

namespace output::svg {

/// Text as XML may hold it: what XML 1.0 forbids becomes U+FFFD, ends of line and tabs a blank
/// each, and what shows nothing is left out.
QString plain(QStringView text);

/// A length in logical pixels, to a thousandth: "12.5". Positions are to a hundredth of a twip.
QString pixels(double twips);

/// "#rrggbb".
QString colour(QRgb ink);

/// Text of a page as Unicode: codes of the sign faces are the characters that look like them, and
/// those that show nothing are left out.
QString shownText(const QString& face, const QString& text);

/// The families to draw a face with, the first that is there: the faces that Orvalente measures
/// with, those a page asked for, and those that hold the rarer characters.
QString families(const QString& face);

} // namespace output::svg
