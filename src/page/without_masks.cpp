#include "page/without_masks.h"

#include "page/masked_pictures.h"
#include "page/multiply_inks.h"

#include <QRectF>

#include <algorithm>

namespace page {

namespace {

/// Areas that a mask fill is compared with: two rows of the widest table. Without a bound, the time
/// would grow with the square of the page.
constexpr std::size_t kComparedAreas = 64;

constexpr QRgb kWhite = 0xffffffff;

struct Tint {
    SurfaceId surface;
    QRectF area;
    QRgb ink;
};

QRectF areaOf(const FillOperation& fill) {
    return {fill.x, fill.y, fill.width, fill.height};
}

class Rewriting {
public:
    Rewriting(const std::vector<DrawnOperation>& operations, const TextMetrics& metrics)
        : operations_(operations), inks_(maskedInks(operations, metrics)),
          pictures_(maskedPictures(operations, maskedInk)) {
        for (std::size_t i = 0; i < operations.size(); ++i)
            if (const auto* fill = std::get_if<FillOperation>(&operations[i]);
                fill && fill->mode == FillMode::Mask)
                masks_.push_back({i, {fill->surface, areaOf(*fill), fill->ink}});
    }

    std::vector<DrawnOperation> run() {
        if (masks_.empty())
            return operations_;
        for (const Mask& mask : masks_)
            tint({mask.tint.surface, mask.tint.area, kWhite}, mask);
        emitTints();
        for (index_ = 0; index_ < operations_.size(); ++index_)
            std::visit(*this, operations_[index_]);
        return std::move(result_);
    }

    void operator()(TextOperation text) {
        text.ink = inks_[index_];
        result_.emplace_back(std::move(text));
    }
    void operator()(LineOperation line) {
        line.ink = inks_[index_];
        result_.emplace_back(line);
    }
    void operator()(const FillOperation& fill) {
        if (fill.mode == FillMode::Mask)
            return;
        result_.emplace_back(fill);
        for (const Mask* mask : masksOver(fill.surface, areaOf(fill)))
            tint({fill.surface, areaOf(fill), fill.ink}, *mask);
        emitTints();
    }
    void operator()(PictureOperation picture) {
        if (const auto masked = pictures_.find(index_); masked != pictures_.end())
            picture.picture = masked->second;
        result_.emplace_back(std::move(picture));
    }

private:
    struct Mask {
        std::size_t index;
        Tint tint;
    };

    /// The mask fills that come later than the operation at hand and touch its area.
    std::vector<const Mask*> masksOver(SurfaceId surface, const QRectF& area) const {
        std::vector<const Mask*> over;
        const auto later = std::lower_bound(
            masks_.begin(), masks_.end(), index_,
            [](const Mask& mask, std::size_t index) { return mask.index < index; });
        for (auto mask = later; mask != masks_.end() && over.size() < kComparedAreas; ++mask)
            if (mask->tint.surface == surface && mask->tint.area.intersects(area))
                over.push_back(&*mask);
        return over;
    }

    /// Lays a mask fill over a ground, and over what other fills have tinted of it: of all areas
    /// that hold a point, the last has the colour of all of them together.
    void tint(const Tint& ground, const Mask& mask) {
        const std::size_t before = tints_.size();
        const auto lay = [&](const Tint& below) {
            const QRectF area = below.area & mask.tint.area;
            if (below.surface == mask.tint.surface && !area.isEmpty())
                tints_.push_back({below.surface, area, (below.ink & mask.tint.ink) | 0xff000000});
        };
        lay(ground);
        for (std::size_t i = before - std::min(before, kComparedAreas); i < before; ++i)
            lay(Tint(tints_[i]));
    }

    void emitTints() {
        for (const Tint& tint : tints_)
            result_.emplace_back(FillOperation{tint.surface, tint.area.x(), tint.area.y(),
                                               tint.area.width(), tint.area.height(), tint.ink,
                                               FillMode::Copy});
        tints_.clear();
    }

    const std::vector<DrawnOperation>& operations_;
    std::vector<QRgb> inks_;
    std::map<std::size_t, std::shared_ptr<const Picture>> pictures_;
    std::vector<Mask> masks_;
    std::vector<Tint> tints_;
    std::vector<DrawnOperation> result_;
    std::size_t index_ = 0;
};

} // namespace

std::vector<DrawnOperation> withoutMasks(const std::vector<DrawnOperation>& operations,
                                         const TextMetrics& metrics) {
    return Rewriting(operations, metrics).run();
}

} // namespace page
