#pragma once

#include "page/readable_page.h"

#include <QRectF>
#include <QString>

#include <vector>

namespace page {

/// What a voice says at one go: a heading, a paragraph, an item of a list, a row of a table, what a
/// picture shows.
struct SpokenPart {
    QString words; ///< never empty
    QRectF area;   ///< on the surface, twips; null for what stands elsewhere
};

/// Where reading aloud begins; what stands before either is passed over.
struct ReadingStart {
    /// In ReadablePage::text(). The word around it is read whole, and so is a formula or a row.
    qsizetype position = 0;
    /// Twips from the top of the surface: a line is read when its middle is not above.
    double top = 0;
};

/// A page from there to its end, in the order and with the words that screen readers have, signs in
/// words too.
std::vector<SpokenPart> spokenParts(const ReadablePage& page, const ReadingStart& start = {});

} // namespace page
