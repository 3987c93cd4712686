#pragma once

#include <QByteArray>

#include <set>

namespace publish {

/// The face of a font file with no more than these characters, as WOFF2
/// (https://www.w3.org/TR/WOFF2); empty when it has none of them or cannot be read. Of its names
/// only the notice and the licence are kept: the licences of some faces reserve their names to
/// whole files.
QByteArray fontSubset(const QByteArray& fontFile, const std::set<char32_t>& characters);

/// What the face itself is, whatever was asked for.
struct FaceStyle {
    bool bold = false;
    bool italic = false;
};
FaceStyle faceStyle(const QByteArray& fontFile);

} // namespace publish
