#include "viewer/paper_layout.h"

#include "page/surface.h"
#include "page/surface_widths.h"
#include "page/twips.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

namespace viewer {

namespace {

using page::kTwipsPerPixel;

constexpr double kColumn = page::kPageWidthPx * kTwipsPerPixel;

/// The lowest place that is printed, as on screen: a few characters of source reach any height.
constexpr double kLowest = page::kMaxSurfaceHeightPx * kTwipsPerPixel;

/// Largest part of a sheet that a footer in huge letters keeps for itself.
constexpr double kFooterShare = 0.25;

/// A cut leaves no sheet emptier than this part of it; rather, something is cut through.
constexpr double kLeastFilled = 0.25;

/// How many times too long a page may be to be reduced to one sheet: its letters then keep five
/// sixths of their size.
constexpr double kMostReduction = 1.2;

/// Least height of a sheet, an inch, whatever margins a driver reports.
constexpr double kLeastHeight = 1440;

/// Part of a line's height that another line may overlap above, and below, without being one with
/// it: pages set some lines closer than they are high.
constexpr double kOverlap = 0.2;

/// The same in twips, for huge letters: much less than the least that a sheet holds.
constexpr double kMaxOverlap = 150;

/// From where to where an operation reaches, and how much it matters that it is not cut.
struct Extent {
    enum class Kind { Text, Drawing, Background };

    double top, bottom;
    Kind kind;
    bool isBold = false;

    /// Where cuts go through it.
    double innerTop() const { return top + margin(); }
    double innerBottom() const { return bottom - margin(); }
    double margin() const {
        return kind == Kind::Text ? std::min(kOverlap * (bottom - top), kMaxOverlap) : 0;
    }
};

struct ExtentOf {
    const page::TextMetrics& metrics;

    std::optional<Extent> operator()(const page::TextOperation& text) const {
        if (text.text.trimmed().isEmpty() && !text.font.underline)
            return std::nullopt;
        return Extent{text.y, text.y + metrics.height(text.font), Extent::Kind::Text,
                      text.font.bold};
    }
    std::optional<Extent> operator()(const page::LineOperation& line) const {
        const auto [top, bottom] = std::minmax(line.y1, line.y2);
        return Extent{top, bottom + line.lineWidth * kTwipsPerPixel, Extent::Kind::Background};
    }
    std::optional<Extent> operator()(const page::FillOperation& fill) const {
        return Extent{fill.y, fill.y + fill.height, Extent::Kind::Background};
    }
    std::optional<Extent> operator()(const page::PictureOperation& picture) const {
        return Extent{picture.y, picture.y + picture.height, Extent::Kind::Drawing};
    }
};

/// A footer wider than the paper, in the large letters that a page ended with, becomes smaller.
Footer fitted(Footer footer, double width, const page::TextMetrics& metrics) {
    while (footer.font.points > 1 && metrics.width(footer.font, footer.text) > width)
        footer.font.points = std::floor(footer.font.points - 1);
    return footer;
}

/// Lays out one page of the course.
class Layout {
public:
    /// Sheets are laid out at least `enlargement` times as large as the paper, 1 or more.
    Layout(const page::Recording& drawing, const std::vector<page::LinkArea>& links,
           const Footer& footer, const platform::Paper& paper, const page::TextMetrics& metrics,
           double enlargement = 1)
        : paper_(paper), metrics_(metrics),
          enlargement_(std::max(enlargement, kColumn / std::max(1.0, paper.printableWidth))),
          width_(paper.printableWidth * enlargement_),
          height_(std::max(kLeastHeight, paper.printableHeight * enlargement_)),
          footer_(fitted(footer, width_, metrics)), footerHeight_(metrics.height(footer_.font)),
          room_(height_ - std::min(2.5 * footerHeight_, kFooterShare * height_)) {
        page::putOnSheet(drawing, metrics, page_);
        page_.links = links;
        for (const page::DrawnOperation& operation : page_.operations)
            measure(operation);
        std::sort(byTop_.begin(), byTop_.end(),
                  [](const Extent& a, const Extent& b) { return a.innerTop() > b.innerTop(); });
    }

    /// How much larger the sheet has to be laid out for the page to stand on a single one; 1 when
    /// it does already.
    double enlargementForOneSheet() const {
        return room_ >= lowest_ ? 1 : (lowest_ + height_ - room_) / paper_.printableHeight;
    }

    std::vector<page::Sheet> sheets() {
        std::vector<page::Sheet> sheets;
        double from = 0;
        do {
            const double start = origin(from);
            const double end = start + room_ >= lowest_ ? kEndless : cut(start);
            sheets.push_back(sheet(from, start, end));
            from = end;
        } while (from < kEndless);
        addFooter(sheets.back());
        return sheets;
    }

private:
    static constexpr double kEndless = std::numeric_limits<double>::infinity();

    void measure(const page::DrawnOperation& operation) {
        extents_.push_back(std::visit(ExtentOf{metrics_}, operation));
        std::optional<Extent>& extent = extents_.back();
        // Neither what lies beyond the page's ends nor what has no height shows.
        if (!extent || !(extent->top < kLowest) || !(extent->bottom > 0) ||
            !(extent->bottom > extent->top))
            extent.reset();
        if (!extent)
            return;
        byTop_.push_back(*extent);
        lowest_ = std::max(lowest_, std::min(extent->innerBottom(), kLowest));
    }

    /// Where the sheet that starts at a place of the page ends.
    double cut(double start) const {
        const double end = start + room_;
        const double least = start + kLeastFilled * room_;
        const double gentle = cutAbove(end, &Layout::isWhole);
        const double beforeHeading = cutAbove(aboveHeadings(gentle), &Layout::isWhole);
        const double rough = cutAbove(end, &Layout::isText);
        for (const double candidate : {beforeHeading, gentle, rough})
            if (candidate >= least)
                return candidate;
        return end;
    }

    bool isText(const Extent& e) const { return e.kind == Extent::Kind::Text; }

    /// Whether it should not be cut: a line of text, a picture, and what belongs to a row or a
    /// sign.
    bool isWhole(const Extent& e) const {
        const double height = e.bottom - e.top;
        return isText(e) || height <= (e.kind == Extent::Kind::Drawing ? room_ : room_ / 2);
    }

    /// The place, or that above the headings which stand there one below the other: a chapter's, a
    /// table's, and the table's first row. More than three in a row are no headings.
    double aboveHeadings(double end) const {
        for (int i = 0; i < 3; ++i)
            end = headingAbove(end);
        return end;
    }

    /// Top of the last line above a place when it is a heading, which is all in bold and goes with
    /// what follows it; otherwise the place.
    double headingAbove(double end) const {
        double top = end;
        for (const Extent& extent : byTop_) { // from the lowest top up
            if (extent.innerTop() >= end || !isText(extent))
                continue;
            if (top < end && extent.innerBottom() <= top)
                break;
            if (!extent.isBold)
                return end;
            top = extent.innerTop();
        }
        return top;
    }

    /// The lowest place, from `end` up, that nothing of the kind reaches across.
    double cutAbove(double end, bool (Layout::*isOfKind)(const Extent&) const) const {
        for (const Extent& extent : byTop_) // from the lowest top up
            if (extent.innerTop() < end && extent.innerBottom() > end && (this->*isOfKind)(extent))
                end = extent.innerTop();
        return end;
    }

    /// The place of the page at the top of the sheet that shows what comes from a cut on: without
    /// the gap that may follow. The first sheet begins where the page does.
    double origin(double from) const {
        if (from <= 0)
            return 0;
        double origin = kEndless;
        for (const Extent& extent : byTop_)
            if (extent.innerBottom() > from)
                origin = std::min(origin, extent.innerTop() < from ? from : extent.top);
        return origin;
    }

    /// Shows what lies between two cuts.
    page::Sheet sheet(double from, double start, double end) const {
        page::Sheet sheet;
        sheet.width = paper_.width * enlargement_;
        sheet.height = paper_.height * enlargement_;
        sheet.surfaces = {{page::SurfaceId::Printer, paper_.left * enlargement_,
                           paper_.top * enlargement_, width_, height_}};
        bool isCutThrough = false;
        for (std::size_t i = 0; i < extents_.size(); ++i) {
            const auto& extent = extents_[i];
            if (!extent || extent->innerBottom() <= from || extent->innerTop() >= end)
                continue;
            sheet.operations.push_back(
                page::moved(page_.operations[i], (width_ - kColumn) / 2, -start));
            isCutThrough = isCutThrough || extent->innerBottom() > end;
        }
        for (const page::LinkArea& link : page_.links)
            if (const double middle = link.y + link.height / 2; middle >= from && middle < end)
                sheet.links.push_back({link.surface, link.x + (width_ - kColumn) / 2,
                                       link.y - start, link.width, link.height, link.tag,
                                       link.tooltip, link.caption});
        // What goes on on the next sheet does not run through the foot of this one.
        if (isCutThrough)
            sheet.operations.emplace_back(
                page::FillOperation{page::SurfaceId::Printer, 0, end - start, width_,
                                    height_ - (end - start), 0xffffffff, page::FillMode::Copy});
        return sheet;
    }

    void addFooter(page::Sheet& sheet) const {
        const double width = metrics_.width(footer_.font, footer_.text);
        sheet.operations.emplace_back(page::TextOperation{
            page::SurfaceId::Printer, (width_ - width) / 2, height_ - 2 * footerHeight_,
            footer_.text, footer_.font, 0xff000000, width});
    }

    const platform::Paper& paper_;
    const page::TextMetrics& metrics_;
    double enlargement_;
    double width_;  ///< of the printable part, as laid out
    double height_; ///< of the printable part, as laid out
    Footer footer_;
    double footerHeight_;
    double room_; ///< height above the footer
    page::Sheet page_{};
    std::vector<std::optional<Extent>> extents_; ///< one for each operation of the page
    std::vector<Extent> byTop_;                  ///< those that show, the lowest first
    double lowest_ = 0;
};

} // namespace

std::vector<page::Sheet> layOnPaper(const page::Recording& drawing, const Footer& footer,
                                    const platform::Paper& paper, const page::TextMetrics& metrics,
                                    const std::vector<page::LinkArea>& links) {
    Layout layout(drawing, links, footer, paper, metrics);
    const double wanted = layout.enlargementForOneSheet();
    if (wanted > 1 && wanted <= kMostReduction)
        return Layout(drawing, links, footer, paper, metrics, wanted).sheets();
    return layout.sheets();
}

} // namespace viewer
