#pragma once

#include "coursedata/bound_record.h"
#include "markup/draw_page.h"
#include "platform/printer.h"
#include "shell/shared_state.h"

#include <cstdint>
#include <functional>

namespace viewer {

/// Most pages of one job: two reams of paper. A range that a course gives wrongly ends there.
inline constexpr int kMaxPrintedPages = 1000;

/// What became of a job.
struct PrintRun {
    int wanted = 0;        ///< pages of the range
    int printed = 0;       ///< of these, as far as the printer took them
    bool hasBegun = false; ///< there was a printer
    bool hasEnded = false; ///< what was printed was handed over

    /// Whether a part of the pages is missing on paper that was not missing from the start.
    bool isCut() const { return hasBegun && (printed < wanted || !hasEnded); }
};

/// Prints the pages that belong together with the one shown: each is drawn anew, on paper.
class PagePrinter {
public:
    struct Parts {
        shell::SharedState& state;
        coursedata::BoundRecord& record;
        markup::DrawingTools tools;
        platform::Printer& printer;
        /// Whether no further sheet is wanted; asked after each. May be empty.
        std::function<bool()> isStopped;
    };
    /// All references must outlive the printer.
    explicit PagePrinter(const Parts& parts) : parts_(parts) {}

    /// Prints the range of the current record as one job, to the end or until it is stopped. What
    /// fails is passed over: without a printer, nothing happens. Afterwards the record is current
    /// that was so before, and the page on screen is as it was.
    PrintRun imprimepage();

private:
    /// Fixed page numbers; nothing is printed when the first exceeds the last.
    struct Range {
        std::int64_t first, last;
    };
    Range range() const;

    void setBusy(bool busy);
    void makeCurrentByNumber(std::int64_t number);
    /// The sheets of the current record; false when one of them is missing. `isStopped` is set when
    /// no more are to follow.
    bool printPage(const QString& footer, bool& isStopped);

    Parts parts_;
};

} // namespace viewer
