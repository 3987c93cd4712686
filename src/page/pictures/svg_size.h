#pragma once

#include <QSizeF>
#include <QXmlStreamAttributes>

namespace page {

/// The size of an SVG in pixels of 96 to the inch, as the attributes of its first element give it:
/// width and height, and where they are missing (or shares of the page), the view box. Empty when
/// they do not tell.
QSizeF svgSize(const QXmlStreamAttributes& attributes);

} // namespace page
