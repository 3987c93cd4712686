#include "page/multiply_inks.h"

#include "page/twips.h"

#include <QRectF>

#include <algorithm>
#include <cmath>
#include <deque>
#include <optional>

namespace page {

namespace {

/// Fills that are looked at for what was drawn before them: two rows of the widest table. Without a
/// bound, the time would grow with the square of the page.
constexpr std::size_t kLaterFills = 64;

/// What an operation that has an ink covers.
struct Inked {
    SurfaceId surface;
    QRectF area;
    QRgb ink;
};

struct InkOf {
    const TextMetrics& metrics;

    std::optional<Inked> operator()(const TextOperation& text) const {
        return Inked{
            text.surface, {text.x, text.y, text.width, metrics.height(text.font)}, text.ink};
    }
    std::optional<Inked> operator()(const LineOperation& line) const {
        const double thick = std::max(1, line.lineWidth) * kTwipsPerPixel;
        const QRectF area(QPointF(line.x1, line.y1), QPointF(line.x2, line.y2));
        return Inked{line.surface, area.normalized().adjusted(0, 0, thick, thick), line.ink};
    }
    std::optional<Inked> operator()(const FillOperation& fill) const {
        return Inked{fill.surface, {fill.x, fill.y, fill.width, fill.height}, fill.ink};
    }
    std::optional<Inked> operator()(const PictureOperation&) const { return std::nullopt; }
};

/// Edges fall on whole pixels.
bool covers(const Inked& fill, const Inked& below) {
    const auto reaches = [](double outer, double inner) {
        return std::round(outer / kTwipsPerPixel) <= std::round(inner / kTwipsPerPixel);
    };
    return fill.surface == below.surface && reaches(fill.area.left(), below.area.left()) &&
           reaches(fill.area.top(), below.area.top()) &&
           reaches(below.area.right(), fill.area.right()) &&
           reaches(below.area.bottom(), fill.area.bottom());
}

/// The channel that gives `channel & cover` when it is multiplied by `cover`.
int quotient(int channel, int cover) {
    return cover == 0 ? 0 : ((channel & cover) * 255 + cover / 2) / cover;
}

/// The inks, each joined by `join` with the AND of the mask fills that cover it.
std::vector<QRgb> joinedInks(const std::vector<DrawnOperation>& operations,
                             const TextMetrics& metrics, QRgb (*join)(QRgb ink, QRgb cover)) {
    std::vector<QRgb> inks(operations.size(), 0xff000000);
    std::deque<Inked> later;
    for (std::size_t i = operations.size(); i-- > 0;) {
        const std::optional<Inked> inked = std::visit(InkOf{metrics}, operations[i]);
        if (!inked)
            continue;
        QRgb cover = 0xffffffff;
        for (const Inked& fill : later)
            if (covers(fill, *inked))
                cover &= fill.ink;
        inks[i] = join(inked->ink, cover);
        const auto* fill = std::get_if<FillOperation>(&operations[i]);
        if (!fill || fill->mode != FillMode::Mask)
            continue;
        later.push_front(*inked);
        if (later.size() > kLaterFills)
            later.pop_back();
    }
    return inks;
}

} // namespace

QRgb multipliedInk(QRgb ink, QRgb cover) {
    return qRgb(quotient(qRed(ink), qRed(cover)), quotient(qGreen(ink), qGreen(cover)),
                quotient(qBlue(ink), qBlue(cover)));
}

QRgb maskedInk(QRgb ink, QRgb cover) {
    return (ink & cover) | 0xff000000;
}

std::vector<QRgb> multiplyInks(const std::vector<DrawnOperation>& operations,
                               const TextMetrics& metrics) {
    return joinedInks(operations, metrics, multipliedInk);
}

std::vector<QRgb> maskedInks(const std::vector<DrawnOperation>& operations,
                             const TextMetrics& metrics) {
    return joinedInks(operations, metrics, maskedInk);
}

} // namespace page
