// Page source to pixels, beside the bare cost of the same drawing calls and beside QTextDocument.

#include "markup/no_pictures.h"
#include "markup/renderer.h"
#include "platform/qt/font_book.h"
#include "platform/qt/raster_surface.h"
#include "rich_page.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QTextDocument>

#include <benchmark/benchmark.h>

namespace {

constexpr int kWidthPx = 600;
constexpr int kHeightPx = 400;

/// A main window without a window.
class Page : public markup::PageWindow, public markup::SourceWindow {
public:
    explicit Page(const QString& source) {
        holder.setText(source);
        state.fenetreSource = this;
    }

    void draw() {
        recording.clear();
        state.surfaceDessin = &texte;
        state.hauteurPage = 0;
        renderer.affichepage();
    }

    platform::RichTextHolder& code() override { return holder; }
    platform::Surface& pictureTexte() override { return texte; }
    platform::Surface& pictureIllus() override { return illus; }
    platform::Surface& titre() override { return title; }
    void setCaption(const QString&) override {}
    void setBusy(bool) override {}
    void refresh(platform::Surface&) override {}
    void showVideoFrame() override {}
    void preparePrinter() override {}

    platform::FontBook fonts;
    platform::Recording recording;
    platform::Surface texte{platform::SurfaceId::PictureTexte, 9000, fonts, recording};
    platform::Surface illus{platform::SurfaceId::PictureIllus, 2250, fonts, recording};
    platform::Surface title{platform::SurfaceId::Titre, 9000, fonts, recording};
    platform::RichTextHolder holder;
    markup::DrawingState state;
    markup::NoPictures pictures;
    markup::Renderer renderer{state, *this, pictures, recording};
};

void pageSourceToPixels(benchmark::State& loop) {
    Page page(bench::richPageSource());
    platform::RasterSurface raster(platform::SurfaceId::PictureTexte, kWidthPx, page.fonts,
                                   0xffffffff);
    for (auto _ : loop) {
        raster.reset();
        page.draw();
        raster.play(page.recording);
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
    Page page(bench::richPageSource());
    page.draw();
    std::vector<Call> calls;
    for (const platform::Operation& operation : page.recording.operations()) {
        const auto& text = std::get<platform::TextOperation>(operation);
        QFont font(QStringLiteral("Liberation Sans"));
        font.setPixelSize(platform::fontPixels(text.font.points));
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
    const QString html = bench::richPageHtml();
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
