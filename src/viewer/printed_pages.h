#pragma once

#include "coursedata/bound_record.h"
#include "markup/draw_page.h"
#include "shell/shared_state.h"
#include "viewer/paper_layout.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace viewer {

/// Most pages of one job: two reams of paper. A range that a course gives wrongly ends there.
inline constexpr int kMaxPrintedPages = 1000;

/// Which pages are printed: all that the course says belong together with the current one, or that
/// one alone.
enum class PrintPart { Chapter, ThisPage };

/// A page of the course as it is drawn on paper, before it is laid out on sheets.
struct PaperPage {
    page::Recording recording;
    std::vector<page::LinkArea> links;
    Footer footer;
    QString title;
    int number;         ///< its fixed number
    bool isRead = true; ///< or it cannot be read, and the sheet says so in its place
};

/// The pages of a print run, drawn anew one after the other.
class PrintedPages {
public:
    /// All references must outlive the pages. `record` is at the page shown; draw() makes others
    /// current.
    struct Parts {
        shell::SharedState& state;
        coursedata::BoundRecord& record;
        markup::DrawingTools tools;
    };
    PrintedPages(const Parts& parts, PrintPart part);

    /// 0 when the range of the record is empty.
    int count() const { return count_; }

    /// Whether both are the same single page.
    bool isAlone(const PrintedPages& page) const {
        return count_ == 1 && page.count_ == 1 && first_ == page.first_;
    }

    /// Draws the page `index`, counted from 0. What a page leaves in the drawing state counts for
    /// the next, so that they are to be drawn in their order.
    PaperPage draw(int index);

    /// The number of a page of this run that the tag of a link leads to.
    std::optional<int> numberOfTag(const QString& tag) const;

private:
    bool makeCurrent(std::int64_t number);
    PaperPage unreadPage(int index) const;
    Footer footer(int index, const page::Font& font) const;

    Parts parts_;
    PrintPart part_;
    std::int64_t first_; ///< fixed number of the first page
    int count_;
    int numberAtStart_; ///< of the first record, where numbers without a page lead too
};

} // namespace viewer
