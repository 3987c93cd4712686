#pragma once

#include <QByteArray>
#include <QRgb>
#include <QString>

namespace output::svg {

/// Appends characters as XML content, also inside an attribute in double quotes: what XML 1.0
/// forbids becomes U+FFFD, ends of line and tabs a blank each.
void appendEscaped(QStringView text, QByteArray& out);

/// A length in logical pixels, to a thousandth: "12.5". Positions are to a hundredth of a twip.
QByteArray pixels(double twips);

/// "#rrggbb".
QByteArray colour(QRgb ink);

/// Text of a page as Unicode: codes of the sign faces are the characters that look like them, and
/// those that show nothing are left out.
QString shownText(const QString& face, const QString& text);

/// The families to draw a face with, the first that is there: the faces that Orvalente measures
/// with, those a page asked for, and those that hold the rarer characters.
QByteArray families(const QString& face);

} // namespace output::svg
