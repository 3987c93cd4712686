#include "viewer/page_printer.h"

#include <vector>

namespace viewer {

void PagePrinter::setBusy(bool busy) {
    if (parts_.tools.watcher)
        parts_.tools.watcher->setBusy(busy);
}

PrintRun PagePrinter::imprimepage(PrintPart part) {
    const int remembered = parts_.record.position();
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
        run.printed += printPage(pages.draw(i), isStopped);
        setBusy(false);
    }
    run.hasEnded = parts_.printer.end();
    parts_.record.moveTo(remembered);
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
