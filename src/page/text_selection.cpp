#include "page/text_selection.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace page {

namespace {

/// Twips from the left of the surface to the left of a character of a piece. What is no plain
/// letter of the run is to be taken as a whole: it is before all of it or behind.
double leftOf(const ReadablePiece& piece, qsizetype index, const TextMetrics& metrics) {
    if (index <= 0)
        return piece.area.left();
    if (index >= piece.count || !piece.isLetterByLetter)
        return piece.area.right();
    return piece.area.left() +
           metrics.width(piece.source->font, QStringView(piece.linear).first(index));
}

qsizetype indexAt(const ReadablePiece& piece, double x, const TextMetrics& metrics) {
    if (!piece.isLetterByLetter)
        return x < piece.area.center().x() ? 0 : piece.count;
    for (qsizetype index = 0; index < piece.count; ++index) {
        const double left = leftOf(piece, index, metrics);
        const double right = leftOf(piece, index + 1, metrics);
        if (x < (left + right) / 2)
            return index;
    }
    return piece.count;
}

double outside(double value, double from, double to) {
    return std::max({0., from - value, value - to});
}

/// The piece that a position is in or right behind; null on a page without text.
const ReadablePiece* pieceAround(const ReadablePage& page, qsizetype position) {
    const ReadablePiece* around = nullptr;
    for (const ReadablePiece* piece : page.pieces())
        if (piece->count > 0 && (!around || piece->from < position))
            around = piece;
    return around;
}

} // namespace

qsizetype textPositionAt(const ReadablePage& page, QPointF point, const TextMetrics& metrics) {
    const ReadablePiece* nearest = nullptr;
    auto least = std::pair(std::numeric_limits<double>::max(), 0.);
    for (const ReadablePiece* piece : page.pieces()) {
        const QRectF& area = piece->area;
        const auto distance = std::pair(outside(point.y(), area.top(), area.bottom()),
                                        outside(point.x(), area.left(), area.right()));
        if (piece->count > 0 && distance < least) {
            least = distance;
            nearest = piece;
        }
    }
    return nearest ? nearest->from + indexAt(*nearest, point.x(), metrics) : 0;
}

void TextSelection::selectAll(const ReadablePage& page) {
    anchor_ = 0;
    end_ = page.text().size();
}

void TextSelection::extend(Step step, const ReadablePage& page, const TextMetrics& metrics) {
    const ReadablePiece* piece = pieceAround(page, end_);
    if (!piece)
        return;
    if (step == Step::Left || step == Step::Right) {
        const bool right = step == Step::Right;
        end_ = std::clamp<qsizetype>(end_ + (right ? 1 : -1), 0, page.text().size());
        for (const ReadablePiece* one : page.pieces())
            if (!one->isLetterByLetter && one->from < end_ && end_ < one->from + one->count)
                end_ = right ? one->from + one->count : one->from;
        return;
    }
    // Where the next line of text is, beside the column at hand.
    const double x = leftOf(*piece, end_ - piece->from, metrics);
    const double y = piece->area.center().y();
    const ReadablePiece* best = nullptr;
    auto least = std::pair(std::numeric_limits<double>::max(), 0.);
    for (const ReadablePiece* one : page.pieces()) {
        const double below = (one->area.center().y() - y) * (step == Step::Down ? 1 : -1);
        const auto distance = std::pair(below, outside(x, one->area.left(), one->area.right()));
        if (one->count > 0 && below > piece->area.height() / 2 && distance < least) {
            least = distance;
            best = one;
        }
    }
    if (best)
        end_ = textPositionAt(page, {x, best->area.center().y()}, metrics);
    else
        end_ = step == Step::Down ? page.text().size() : 0;
}

QString TextSelection::text(const ReadablePage& page) const {
    return page.text().mid(first(), behind() - first()).trimmed();
}

std::vector<QRectF> TextSelection::areas(const ReadablePage& page,
                                         const TextMetrics& metrics) const {
    std::vector<QRectF> areas;
    for (const ReadablePiece* piece : page.pieces()) {
        const qsizetype from = std::max(first() - piece->from, qsizetype{0});
        const qsizetype to = std::min(behind() - piece->from, piece->count);
        if (from >= to)
            continue;
        const double left =
            piece->isLetterByLetter ? leftOf(*piece, from, metrics) : piece->area.left();
        const double right = leftOf(*piece, to, metrics);
        areas.emplace_back(left, piece->area.top(), right - left, piece->area.height());
    }
    return areas;
}

} // namespace page
