#pragma once

#include "platform/printer.h"
#include "viewer/printed_pages.h"

#include <vector>

namespace viewer {

/// What the print button is about to print, for the preview: the chapter and, where that is not
/// the page shown by itself, that page. The pages are drawn as the job will draw them, each when it
/// is first looked at; record and drawing state are left alone.
class PageProposal : public platform::PrintProposal {
public:
    /// The record is at the page shown.
    explicit PageProposal(const PrintedPages::Parts& parts);

    /// Whether there is anything to print: at least one page.
    bool hasPages() const { return chapter_.pages.count() > 0; }
    PrintPart part(int choice) const;

    QStringList choices() const override;
    int pageCount(int choice) const override;
    std::vector<page::Sheet> sheets(int choice, int page, const platform::Paper& paper) override;

private:
    /// A run with a record and a drawing state of its own.
    struct Run {
        Run(const PrintedPages::Parts& parts, PrintPart part);
        const PaperPage& page(int index, coursedata::BoundRecord& shown);

        coursedata::BoundRecord record;
        markup::DrawingState state;
        PrintedPages pages;
        std::vector<PaperPage> drawn; ///< from the first on
    };

    coursedata::BoundRecord& shown_;
    const page::TextMetrics& metrics_;
    Run chapter_;
    Run thisPage_;
};

} // namespace viewer
