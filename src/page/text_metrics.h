#pragma once

#include "page/font.h"

#include <QStringView>

namespace page {

/// Measures text, in twips. The answers depend on the font and the text alone, never on a device:
/// screen, paper and files break a page at the same places.
class TextMetrics {
public:
    virtual ~TextMetrics() = default;

    /// Sum of the advances of the characters, without kerning or ligatures; 0 or more.
    virtual double width(const Font& font, QStringView text) const = 0;

    /// Height of a line: the same for every text of the font.
    virtual double height(const Font& font) const = 0;

    /// Distance from the top of a line to the foot of its letters.
    virtual double ascent(const Font& font) const = 0;
};

} // namespace page
