#include "viewer/page_printer.h"

#include "coursedata/page_index.h"
#include "page/numbers.h"
#include "text/number_text.h"
#include "text/rounding.h"
#include "viewer/paper_layout.h"

#include <algorithm>
#include <vector>

namespace viewer {

namespace {

constexpr int kEditionYear = 2026;

QString footerLine() {
    return QStringLiteral("Orvalente - Physique et chimie, collège et lycée - © KAROPE %1")
        .arg(kEditionYear);
}

/// The mention of a page of a run, counted from 1.
QString pageMention(int count) {
    return QStringLiteral(" - page") + QString::fromStdU16String(text::numberText(count));
}

std::int32_t pageNumber(const QString& field) {
    return text::toInt32(page::leadingNumber(field)).value_or(0);
}

} // namespace

PagePrinter::Range PagePrinter::range() const {
    const std::int64_t first = pageNumber(parts_.record.debimp);
    const std::int64_t last = pageNumber(parts_.record.finimp);
    return {first, std::min(last, first + kMaxPrintedPages - 1)};
}

void PagePrinter::setBusy(bool busy) {
    if (parts_.tools.watcher)
        parts_.tools.watcher->setBusy(busy);
}

void PagePrinter::makeCurrentByNumber(std::int64_t number) {
    // Outside the table the record before stays current and is printed again, meant so.
    const auto position =
        coursedata::positionInPrint(parts_.state, static_cast<std::int32_t>(number));
    if (position)
        parts_.record.moveTo(*position);
}

PrintRun PagePrinter::imprimepage() {
    const int remembered = parts_.record.position();
    const Range pages = range();
    PrintRun run;
    if (pages.first > pages.last)
        return run;
    run.wanted = static_cast<int>(pages.last - pages.first + 1);
    run.hasBegun =
        parts_.printer.begin(QStringLiteral("Orvalente - ") + parts_.record.Textitre.simplified());
    bool isStopped = false;
    for (std::int64_t k = pages.first; k <= pages.last && !isStopped; ++k) {
        const auto count = static_cast<int>(k - pages.first + 1);
        setBusy(true);
        makeCurrentByNumber(k);
        run.printed +=
            printPage(footerLine() + (run.wanted == 1 ? QString() : pageMention(count)), isStopped);
        setBusy(false);
    }
    run.hasEnded = parts_.printer.end();
    parts_.record.moveTo(remembered);
    return run;
}

bool PagePrinter::printPage(const QString& footer, bool& isStopped) {
    const markup::DrawnPage drawn =
        markup::drawPage({parts_.record.code, markup::DrawnAs::Paper}, parts_.tools);
    // The footer is in the letters that the page ended with, meant so.
    const Footer line{footer, drawn.end.font};
    bool isPrinted = true;
    std::vector<page::Sheet> sheets =
        layOnPaper(drawn.recording, line, parts_.printer.paper(), parts_.tools.metrics);
    for (std::size_t i = 0; i < sheets.size() && !isStopped; ++i) {
        sheets[i].title = parts_.record.Textitre;
        // Of a page that is stopped before its last sheet, a part is missing.
        isPrinted = parts_.printer.print(sheets[i]) && isPrinted;
        isStopped = parts_.isStopped && parts_.isStopped();
        isPrinted = isPrinted && (!isStopped || i + 1 == sheets.size());
    }
    return isPrinted;
}

} // namespace viewer
