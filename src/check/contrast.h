#pragma once

#include "check/drawn_source.h"
#include "page/recording.h"

#include <QRgb>

#include <vector>

namespace check {

/// How many times brighter the brighter of two colours is, from 1 to 21, as the Web Content
/// Accessibility Guidelines 2.1 count it ("contrast ratio").
double contrastOf(QRgb a, QRgb b);

/// The least contrast of a text that is called readable here. The guidelines ask for 4.5, and for 3
/// in large letters; but the inks are those of the page language, and the one that definitions are
/// set in (008) has 4.4 on white. Below 3, every reader has trouble.
inline constexpr double kLeastContrast = 3;

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

} // namespace check
