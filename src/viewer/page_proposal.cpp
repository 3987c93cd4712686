#include "viewer/page_proposal.h"

#include "viewer/page_printer.h"

namespace viewer {

PageProposal::Run::Run(const PrintedPages::Parts& parts, PrintPart part)
    : record(parts.record), state(parts.tools.state),
      pages({parts.state, record, {state, parts.tools.pictures, parts.tools.metrics}}, part) {}

const PaperPage& PageProposal::Run::page(int index, coursedata::BoundRecord& shown) {
    const int position = shown.position();
    while (static_cast<int>(drawn.size()) <= index)
        drawn.push_back(pages.draw(static_cast<int>(drawn.size())));
    // The table is where it was again; the fields of the record shown have not been touched.
    coursedata::BoundRecord(shown).moveTo(position);
    return drawn[static_cast<std::size_t>(index)];
}

PageProposal::PageProposal(const PrintedPages::Parts& parts)
    : shown_(parts.record), metrics_(parts.tools.metrics), chapter_(parts, PrintPart::Chapter),
      thisPage_(parts, PrintPart::ThisPage) {}

PrintPart PageProposal::part(int choice) const {
    return choice == 0 ? PrintPart::Chapter : PrintPart::ThisPage;
}

QStringList PageProposal::choices() const {
    if (chapter_.pages.isAlone(thisPage_.pages))
        return {QStringLiteral("Cette page")};
    const int pages = chapter_.pages.count();
    return {pages == 1 ? QStringLiteral("Le chapitre (1 page)")
                       : QStringLiteral("Le chapitre (%1 pages)").arg(pages),
            QStringLiteral("Cette page")};
}

int PageProposal::pageCount(int choice) const {
    return (choice == 0 ? chapter_ : thisPage_).pages.count();
}

std::vector<page::Sheet> PageProposal::sheets(int choice, int page, const platform::Paper& paper) {
    Run& run = choice == 0 ? chapter_ : thisPage_;
    return sheetsOf(run.page(page, shown_), paper, metrics_);
}

} // namespace viewer
