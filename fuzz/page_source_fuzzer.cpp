// Draws whatever it is given, on a course page, in a question and on paper, then as pixels.
//   scripts/fuzz [SECONDS]

#include "markup/any_page.h"
#include "output/raster/raster_surface.h"
#include "page/faces/font_book.h"

#include <QGuiApplication>

#include <cstdint>

namespace {

/// Longer sources say nothing that shorter ones do not.
constexpr std::size_t kMostBytes = 20000;

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QGuiApplication application(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static test_support::PageBench bench;
    static const page::FontBook fonts;
    static output::RasterSurface raster(page::SurfaceId::PictureTexte, 600, fonts,
                                        qRgb(255, 255, 255));
    if (size > kMostBytes)
        return 0;
    QString source =
        QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    test_support::drawAnyWay(source.replace(QStringLiteral("\n"), QStringLiteral("\r\n")), bench);
    raster.reset();
    raster.play(bench.page.recording);
    return 0;
}
