#pragma once

#include <QByteArray>
#include <QRawFont>

namespace page {

/// A font file with the tables of a face that drawing needs, in the container that OpenType and
/// TrueType share. Qt does not tell where it found a face; another library that looked for the
/// same name could find another version of it, with other glyph numbers. Empty when the face is of
/// a format without such tables.
QByteArray faceFile(const QRawFont& font);

} // namespace page
