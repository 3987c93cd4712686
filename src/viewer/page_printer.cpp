#include "viewer/page_printer.h"

#include "coursedata/page_index.h"
#include "look/surface_widths.h"
#include "page/numbers.h"
#include "page/twips.h"
#include "text/number_text.h"
#include "text/rounding.h"
#include "viewer/paper_layout.h"

#include <algorithm>
#include <tuple>
#include <utility>

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
    const std::int64_t first = pageNumber(parts_.bound.debimp);
    const std::int64_t last = pageNumber(parts_.bound.finimp);
    return {first, std::min(last, first + kMaxPrintedPages - 1)};
}

/// Without a record at the position, the one before stays.
void PagePrinter::makeCurrent(int position) {
    parts_.pages.moveTo(position);
    parts_.source.code().setText(parts_.bound.code);
}

void PagePrinter::makeCurrentByNumber(std::int64_t number) {
    // Outside the table the record before stays current and is printed again, meant so.
    const auto position =
        coursedata::positionInPrint(parts_.state, static_cast<std::int32_t>(number));
    makeCurrent(position.value_or(-1));
}

PrintRun PagePrinter::imprimepage() {
    const int remembered = parts_.pages.position();
    const Range pages = range();
    PrintRun run;
    if (pages.first > pages.last)
        return run;
    run.wanted = static_cast<int>(pages.last - pages.first + 1);
    run.hasBegun =
        parts_.printer.begin(QStringLiteral("Orvalente - ") + parts_.bound.Textitre.simplified());
    bool isStopped = false;
    for (std::int64_t k = pages.first; k <= pages.last && !isStopped; ++k) {
        const auto count = static_cast<int>(k - pages.first + 1);
        parts_.view.showHourglass();
        makeCurrentByNumber(k);
        run.printed +=
            printPage(footerLine() + (run.wanted == 1 ? QString() : pageMention(count)), isStopped);
        parts_.view.restorePointer();
    }
    run.hasEnded = parts_.printer.end();
    makeCurrent(remembered);
    return run;
}

bool PagePrinter::printPage(const QString& footer, bool& isStopped) {
    page::Recording drawing;
    // The footer is in the letters that the page ended with, meant so.
    const Footer line{footer, drawOnPaper(drawing)};
    bool isPrinted = true;
    std::vector<page::Sheet> sheets =
        layOnPaper(drawing, line, parts_.printer.paper(), parts_.metrics);
    for (std::size_t i = 0; i < sheets.size() && !isStopped; ++i) {
        sheets[i].title = parts_.bound.Textitre;
        // Of a page that is stopped before its last sheet, a part is missing.
        isPrinted = parts_.printer.print(sheets[i]) && isPrinted;
        isStopped = parts_.isStopped && parts_.isStopped();
        isPrinted = isPrinted && (!isStopped || i + 1 == sheets.size());
    }
    return isPrinted;
}

page::Font PagePrinter::drawOnPaper(page::Recording& drawing) {
    page::Surface paper(page::SurfaceId::Printer, look::kPageWidthPx * page::kTwipsPerPixel,
                        parts_.metrics, drawing);
    // The renderer of the screen would note in the recording of the page shown what fails here.
    markup::DrawingState& state = parts_.drawing;
    markup::Renderer renderer(state, parts_.window, parts_.pictures, drawing);
    const auto onScreen = std::pair(state.surfaceDessin, state.fenetreSource);
    state.hauteurPage = 0;
    state.surfaceDessin = &paper;
    state.fenetreSource = &parts_.source;
    state.enImpression = true;
    renderer.affichepage();
    state.enImpression = false;
    // This paper is gone before anything else is drawn.
    std::tie(state.surfaceDessin, state.fenetreSource) = onScreen;
    return paper.font();
}

} // namespace viewer
