#pragma once

#include "page/readable_page.h"
#include "page/text_metrics.h"

#include <QPointF>
#include <QRectF>

#include <algorithm>
#include <vector>

namespace page {

/// Part of the text of a readable page, from where it was begun to where it ends now; either may
/// come first. Positions are between the characters of ReadablePage::text(). A formula is taken as
/// a whole. What it shows belongs to one page: for another, start with a new one.
class TextSelection {
public:
    bool isEmpty() const { return anchor_ == end_; }
    void clear() { anchor_ = end_; }
    void begin(qsizetype at) { anchor_ = end_ = at; }
    void extendTo(qsizetype at) { end_ = at; }
    void selectAll(const ReadablePage& page);

    enum class Step { Left, Right, Up, Down };
    /// Moves the end by a character or a line.
    void extend(Step step, const ReadablePage& page, const TextMetrics& metrics);

    qsizetype end() const { return end_; }
    qsizetype first() const { return std::min(anchor_, end_); }

    QString text(const ReadablePage& page) const;
    /// What of the surface is selected, in twips.
    std::vector<QRectF> areas(const ReadablePage& page, const TextMetrics& metrics) const;

private:
    qsizetype behind() const { return std::max(anchor_, end_); }

    qsizetype anchor_ = 0;
    qsizetype end_ = 0;
};

/// The position in the text that is nearest to a point of the surface, in twips: on the line that
/// the point is beside, above all.
qsizetype textPositionAt(const ReadablePage& page, QPointF point, const TextMetrics& metrics);

} // namespace page
