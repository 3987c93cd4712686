// Source to recording for pages of 1,000, 10,000 and 100,000 lines: ten times the lines may take at
// most thirteen times the time.

#include "markup/draw_page.h"
#include "no_pictures.h"
#include "page/faces/font_book.h"
#include "rich_page.h"

#include <QGuiApplication>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

/// A page of the rich page's lines and some links, over and over.
QString sourceOf(int lines) {
    const QString once =
        bench::richPageSource() + QStringLiteral("##LIERTla loi de Descartes#PAG013\r\n¶\r\n");
    const int linesOnce = static_cast<int>(once.count(QStringLiteral("\r\n")));
    QString source;
    source.reserve(once.size() * (lines / linesOnce + 2));
    int written = 0;
    for (; written + linesOnce <= lines; written += linesOnce)
        source += once;
    for (; written < lines; ++written)
        source += QStringLiteral("¶\r\n");
    return source;
}

double medianMilliseconds(int lines, const page::FontBook& fonts) {
    const QString source = sourceOf(lines);
    NoPictures pictures;
    markup::DrawingState state;
    std::vector<double> times;
    for (int i = 0; i < 9; ++i) {
        const auto start = Clock::now();
        const markup::DrawnPage page = markup::drawPage({source}, {state, pictures, fonts});
        times.push_back(std::chrono::duration<double, std::milli>(Clock::now() - start).count());
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const page::FontBook fonts;
    double before = 0;
    for (const int lines : {1000, 10'000, 100'000}) {
        const double time = medianMilliseconds(lines, fonts);
        std::printf("%7d lines: %8.2f ms", lines, time);
        if (before > 0)
            std::printf(", %.1f times the line above (limit 13)", time / before);
        std::printf("\n");
        before = time;
    }
}
