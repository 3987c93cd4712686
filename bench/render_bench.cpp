// Page source to pixels, beside the bare cost of the same drawing calls and beside QTextDocument.

#include "bench_page.h"
#include "no_pictures.h"
#include "output/raster/raster_surface.h"
#include "page/faces/font_book.h"
#include "rich_page.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QPainter>
#include <QTextDocument>

#include <benchmark/benchmark.h>

namespace {

constexpr int kWidthPx = 600;
constexpr int kHeightPx = 400;

void pageSourceToPixels(benchmark::State& loop) {
    NoPictures pictures;
    bench::Page page(pictures);
    const QString source = bench::richPageSource();
    output::RasterSurface raster(page::SurfaceId::PictureTexte, kWidthPx, page.fonts, 0xffffffff);
    // Shown by a row, a page that fits the window is drawn as a whole.
    const QRect firstRow(0, 0, kWidthPx, 1);
    QImage shown(firstRow.size(), QImage::Format_RGB32);
    for (auto _ : loop) {
        raster.reset();
        page.draw(source);
        raster.play(page.drawn.recording);
        QPainter painter(&shown);
        raster.paint(painter, firstRow);
        benchmark::DoNotOptimize(raster.drawnHeightPx());
    }
}
BENCHMARK(pageSourceToPixels)->Unit(benchmark::kMicrosecond);

/// What a program would do that knew every position, font and ink beforehand.
void bareDrawingCalls(benchmark::State& loop) {
    struct Call {
        QFont font;
        QColor ink;
        QPointF foot;
        QString text;
    };
    NoPictures pictures;
    bench::Page page(pictures);
    page.draw(bench::richPageSource());
    std::vector<Call> calls;
    for (const page::Operation& operation : page.drawn.recording.operations()) {
        const auto& text = std::get<page::TextOperation>(operation);
        QFont font(QStringLiteral("Liberation Sans"));
        font.setPixelSize(page::fontPixels(text.font.points));
        font.setBold(text.font.bold);
        font.setItalic(text.font.italic);
        font.setKerning(false);
        font.setHintingPreference(QFont::PreferVerticalHinting);
        calls.push_back({font, QColor::fromRgb(text.ink),
                         QPointF(text.x / 15, (text.y + page.fonts.ascent(text.font)) / 15),
                         text.text});
    }
    QImage image(kWidthPx, kHeightPx, QImage::Format_RGB32);
    for (auto _ : loop) {
        image.fill(Qt::white);
        QPainter painter(&image);
        for (const Call& call : calls) {
            painter.setFont(call.font);
            painter.setPen(call.ink);
            painter.drawText(call.foot, call.text);
        }
        painter.end();
        benchmark::DoNotOptimize(image.constBits());
    }
}
BENCHMARK(bareDrawingCalls)->Unit(benchmark::kMicrosecond);

void textDocument(benchmark::State& loop) {
    const QString html =
        QStringLiteral("<body style='font-family:Liberation Sans;font-size:16px'>") +
        bench::richPageHtml();
    QImage image(kWidthPx, kHeightPx, QImage::Format_RGB32);
    for (auto _ : loop) {
        QTextDocument document;
        document.setHtml(html);
        document.setTextWidth(kWidthPx);
        image.fill(Qt::white);
        QPainter painter(&image);
        document.drawContents(&painter);
        painter.end();
        benchmark::DoNotOptimize(image.constBits());
    }
}
BENCHMARK(textDocument)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
