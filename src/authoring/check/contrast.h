#pragma once

#include "authoring/check/drawn_source.h"
#include "page/recording.h"

#include <QRgb>

#include <vector>

namespace authoring::check {

/// How many times brighter the brighter of two colours is, from 1 to 21, as the Web Content
/// Accessibility Guidelines 2.1 count it ("contrast ratio").
double contrastOf(QRgb a, QRgb b);

/// The contrast that a text of this font needs after the same guidelines, level AA: 4.5, and 3 for
/// texts of 18 points, or of 14 in bold.
double leastContrast(const page::Font& font);

/// What texts stand on: the white of the surface, and the fills of pages and rows.
class Grounds {
public:
    explicit Grounds(const DrawnSource& drawn);

    /// The contrast of a text with the ground under the middle of its line, both as they show: a
    /// fill with a mask tints the text as well. 21 for a text on a picture, which nobody can judge.
    double contrast(const page::TextOperation& text) const;

private:
    std::vector<const page::FillOperation*> fills_;
    std::vector<const page::PictureOperation*> pictures_;
    const page::TextMetrics& metrics_;
};

} // namespace authoring::check
