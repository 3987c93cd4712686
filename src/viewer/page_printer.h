#pragma once

#include "platform/printer.h"
#include "viewer/printed_pages.h"

#include <functional>

namespace viewer {

/// What became of a job.
struct PrintRun {
    int wanted = 0;        ///< pages of the range
    int printed = 0;       ///< of these, as far as the printer took them
    bool hasBegun = false; ///< there was a printer
    bool hasEnded = false; ///< what was printed was handed over
    int unread = 0; ///< pages that are printed as a line which says that they could not be read

    /// Whether a part of the pages is missing on paper that was not missing from the start.
    bool isCut() const { return hasBegun && (printed < wanted || !hasEnded || unread > 0); }
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

    /// Prints the range of the current record, or that record alone, as one job, to the end or
    /// until it is stopped. What fails is passed over: without a printer, nothing happens.
    /// Afterwards the record is current that was so before, and the page on screen is as it was.
    PrintRun imprimepage(PrintPart part = PrintPart::Chapter);

    /// The pages that would be printed, for who draws them beforehand.
    PrintedPages::Parts pages() const { return {parts_.state, parts_.record, parts_.tools}; }
    platform::PrintTarget target() const { return parts_.printer.target(); }

private:
    void setBusy(bool busy);
    /// The sheets of a page; false when one of them is missing. `isStopped` is set when no more are
    /// to follow.
    bool printPage(const PaperPage& page, bool& isStopped);

    Parts parts_;
};

/// The sheets of paper that a page of the course takes, with its title and number.
std::vector<page::Sheet> sheetsOf(const PaperPage& page, const platform::Paper& paper,
                                  const page::TextMetrics& metrics);

} // namespace viewer
