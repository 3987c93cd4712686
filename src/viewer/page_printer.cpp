#include "viewer/page_printer.h"

#include <vector>

namespace viewer {

void PagePrinter::setBusy(bool busy) {
    if (parts_.tools.watcher)
        parts_.tools.watcher->setBusy(busy);
}

PrintRun PagePrinter::imprimepage(PrintPart part) {
    const coursedata::BoundRecord remembered = parts_.record;
    const int position = remembered.position();
    const QString title = parts_.record.Textitre.simplified();
    PrintedPages pages(this->pages(), part);
    PrintRun run;
    if (pages.count() == 0)
        return run;
    run.wanted = pages.count();
    run.hasBegun =
        parts_.printer.begin({QStringLiteral("Orvalente - ") + title,
                              [&pages](const QString& tag) { return pages.numberOfTag(tag); }});
    bool isStopped = false;
    for (int i = 0; i < pages.count() && !isStopped; ++i) {
        setBusy(true);
        const PaperPage page = pages.draw(i);
        run.unread += !page.isRead;
        run.printed += printPage(page, isStopped);
        setBusy(false);
    }
    run.hasEnded = parts_.printer.end();
    parts_.record = remembered; // its text too, if it cannot be read any more
    parts_.record.moveTo(position);
    return run;
}

bool PagePrinter::printPage(const PaperPage& page, bool& isStopped) {
    bool isPrinted = true;
    const std::vector<page::Sheet> sheets =
        sheetsOf(page, parts_.printer.paper(), parts_.tools.metrics);
    for (std::size_t i = 0; i < sheets.size() && !isStopped; ++i) {
        // Of a page that is stopped before its last sheet, a part is missing.
        isPrinted = parts_.printer.print(sheets[i]) && isPrinted;
        isStopped = parts_.isStopped && parts_.isStopped();
        isPrinted = isPrinted && (!isStopped || i + 1 == sheets.size());
    }
    return isPrinted;
}

std::vector<page::Sheet> sheetsOf(const PaperPage& page, const platform::Paper& paper,
                                  const page::TextMetrics& metrics) {
    std::vector<page::Sheet> sheets =
        layOnPaper(page.recording, page.footer, paper, metrics, page.links);
    for (page::Sheet& sheet : sheets) {
        sheet.title = page.title;
        sheet.number = page.number;
    }
    return sheets;
}

} // namespace viewer
