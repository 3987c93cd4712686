#include "output/svg/text_rows.h"

#include "page/ink_area.h"
#include "page/sheet.h"
#include "page/twips.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace output::svg {

namespace {

/// Runs further apart than this many letters' squares are not of one line: columns, legends.
constexpr double kWidestGap = 1.5;
/// Runs may overlap a little, as slanted letters do.
constexpr double kOverlap = 2 * page::kTwipsPerPixel;

/// A surface with more operations than any page has gets a row for each run, so that no page takes
/// long.
constexpr std::size_t kMostOperations = 20'000;

struct Run {
    std::size_t at;
    double left, right, foot;
    double square; ///< side of the letters' square, twips
    QRectF area;   ///< that it covers
    bool isCut;    ///< at the edge of the surface, which is a matter of its own
};

/// Whether an operation covers a part of the area; texts leave what is below them readable.
struct Covers {
    const QRectF& area;

    bool operator()(const page::TextOperation&) const { return false; }
    bool operator()(const page::LineOperation& line) const {
        const auto [left, right] = std::minmax(line.x1, line.x2);
        const auto [top, bottom] = std::minmax(line.y1, line.y2);
        const double width = line.lineWidth * page::kTwipsPerPixel;
        return area.intersects({left, top, right - left + width, bottom - top + width});
    }
    bool operator()(const page::FillOperation& fill) const {
        return area.intersects({fill.x, fill.y, fill.width, fill.height});
    }
    bool operator()(const page::PictureOperation& picture) const {
        return area.intersects({picture.x, picture.y, picture.width, picture.height});
    }
};

bool isFollowedBy(const Run& run, const Run& next) {
    return std::abs(run.foot - next.foot) < 1 && !run.isCut && !next.isCut &&
           next.left - run.right < kWidestGap * std::max(run.square, next.square) &&
           next.left > run.right - kOverlap;
}

class Rows {
public:
    Rows(const std::vector<page::DrawnOperation>& operations, page::SurfaceId surface,
         const QSizeF& size, const page::TextMetrics& metrics)
        : operations_(operations), surface_(surface), size_(size), metrics_(metrics) {
        for (std::size_t i = 0; i < operations.size(); ++i)
            if (const auto* text = std::get_if<page::TextOperation>(&operations[i]))
                if (text->surface == surface)
                    add(i, *text);
    }

    std::map<std::size_t, TextRow> rows() {
        if (operations_.size() <= kMostOperations)
            std::stable_sort(runs_.begin(), runs_.end(), [](const Run& a, const Run& b) {
                return a.foot != b.foot ? a.foot < b.foot : a.left < b.left;
            });
        std::map<std::size_t, TextRow> rows;
        for (auto first = runs_.begin(); first != runs_.end();) {
            auto last = first + 1;
            if (operations_.size() <= kMostOperations)
                while (last != runs_.end() && isFollowedBy(*(last - 1), *last) &&
                       isFreeBetween(first, last + 1))
                    ++last;
            TextRow row;
            for (auto run = first; run != last; ++run)
                row.push_back(run->at);
            rows.emplace(*std::max_element(row.begin(), row.end()), row);
            first = last;
        }
        return rows;
    }

private:
    using RunPlace = std::vector<Run>::const_iterator;

    void add(std::size_t at, const page::TextOperation& text) {
        const QRectF area = page::inkArea(text, size_, metrics_);
        if (area.isEmpty())
            return;
        runs_.push_back({at,
                         text.x,
                         text.x + text.width,
                         text.y + metrics_.ascent(text.font),
                         page::fontPixels(text.font.points) * page::kTwipsPerPixel,
                         {text.x, text.y, std::max(text.width, 1.0), metrics_.height(text.font)},
                         area != page::withInkMargin(size_)});
    }

    /// Whether the runs can all be drawn where the last of them was.
    bool isFreeBetween(RunPlace first, RunPlace end) const {
        const std::size_t last = std::max_element(first, end, [](const Run& a, const Run& b) {
                                     return a.at < b.at;
                                 })->at;
        for (auto run = first; run != end; ++run)
            for (std::size_t i = run->at + 1; i < last; ++i)
                if (page::surfaceOf(operations_[i]) == surface_ &&
                    std::visit(Covers{run->area}, operations_[i]))
                    return false;
        return true;
    }

    const std::vector<page::DrawnOperation>& operations_;
    page::SurfaceId surface_;
    QSizeF size_;
    const page::TextMetrics& metrics_;
    std::vector<Run> runs_;
};

} // namespace

std::map<std::size_t, TextRow> textRows(const std::vector<page::DrawnOperation>& operations,
                                        page::SurfaceId surface, const QSizeF& size,
                                        const page::TextMetrics& metrics) {
    return Rows(operations, surface, size, metrics).rows();
}

} // namespace output::svg
