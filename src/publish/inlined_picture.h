#pragma once

#include "page/picture.h"

#include <QByteArray>
#include <QString>

#include <functional>

namespace publish {

/// Told each text of a drawing, in the face that it asks for.
using DrawnText =
    std::function<void(const QString& face, bool bold, bool italic, const QString& text)>;

/// A drawing of the course as an element of a page of HTML, one unit wide and high, with this
/// identifier: so it sees the fonts of the page, which pictures in files do not. Only elements and
/// attributes that draw are taken over, so that whatever a file holds can do nothing else. Empty
/// for what is no such drawing, and for one that needs more, as style sheets: it stays a file.
QByteArray inlinedPicture(const page::Picture& picture, const QString& id,
                          const std::function<QString(const QString& face)>& families,
                          const DrawnText& drawn);

} // namespace publish
