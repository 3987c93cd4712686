// Rich pages, from their source to PNG files in memory: the time of the pixels and of the encoding
// apart, beside zlib's fastest level on the same rows. png_bench [PAGES]

#include "bench_page.h"
#include "no_pictures.h"
#include "output/png/png_file.h"
#include "output/raster/sheet_raster.h"
#include "rich_page.h"
#include "viewer/page_sheet.h"

#include <QBuffer>
#include <QGuiApplication>

#include <zlib.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

class Stopwatch {
public:
    template <class Work>
    void time(Work work) {
        const auto start = Clock::now();
        work();
        milliseconds_ += std::chrono::duration<double, std::milli>(Clock::now() - start).count();
    }
    double milliseconds() const { return milliseconds_; }

private:
    double milliseconds_ = 0;
};

/// The rows as a PNG file holds them: a byte that names the filter, then red, green, blue.
std::vector<Bytef> rowsOf(const QImage& image) {
    std::vector<Bytef> rows;
    for (int y = 0; y < image.height(); ++y) {
        rows.push_back(0);
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            for (const int channel : {qRed(pixel), qGreen(pixel), qBlue(pixel)})
                rows.push_back(static_cast<Bytef>(channel));
        }
    }
    return rows;
}

page::Sheet sheetOf(const QString& source, bench::Page& page) {
    page.draw(source);
    return viewer::pageSheet(page.drawn, page.fonts);
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const int pages = argc > 1 ? std::atoi(argv[1]) : 600;
    QGuiApplication application(argc, argv);
    NoPictures pictures;
    bench::Page drawer(pictures);
    output::SheetRaster raster(drawer.fonts, 1);

    Stopwatch drawing;
    Stopwatch encoding;
    Stopwatch deflating;
    qint64 pngBytes = 0;
    std::size_t zlibBytes = 0;
    for (int page = 0; page < pages; ++page) {
        QString source = bench::richPageSource();
        source += QStringLiteral("Page %1¶\r\n").arg(page);
        QSize size;
        const QImage* band = nullptr;
        drawing.time([&] {
            const page::Sheet sheet = sheetOf(source, drawer);
            size = raster.size(sheet);
            band = &raster.band(sheet, 0);
        });
        const auto encode = [&] {
            QBuffer file;
            file.open(QIODevice::WriteOnly);
            encoding.time([&] {
                output::PngFile png(file, size, 96);
                if (!png.add(*band) || !png.finish())
                    std::exit(1);
            });
            pngBytes += file.size();
        };
        const std::vector<Bytef> rows = rowsOf(*band);
        const auto deflate = [&] {
            uLongf length = compressBound(static_cast<uLong>(rows.size()));
            std::vector<Bytef> out(length);
            deflating.time([&] {
                compress2(out.data(), &length, rows.data(), static_cast<uLong>(rows.size()), 1);
            });
            zlibBytes += length;
        };
        // Who comes second finds the processor warm.
        page % 2 ? encode() : deflate();
        page % 2 ? deflate() : encode();
    }
    const double total = drawing.milliseconds() + encoding.milliseconds();
    const double goal = deflating.milliseconds() + 2 * drawing.milliseconds();
    std::printf("%d pages: pixels %.0f ms, encoding %.0f ms (%.1f MB); zlib level 1 on the same "
                "rows %.0f ms (%.1f MB); total %.0f ms, goal: at most %.0f\n",
                pages, drawing.milliseconds(), encoding.milliseconds(),
                static_cast<double>(pngBytes) / 1e6, deflating.milliseconds(),
                static_cast<double>(zlibBytes) / 1e6, total, goal);
}
