#include "output/raster/operation_painter.h"
#include "output/raster/raster_surface.h"
#include "page/surface.h"

#include <QPainter>

#include <gtest/gtest.h>

#include <random>
#include <variant>

namespace {

using page::SurfaceId;

constexpr QRgb kWhite = 0xffffffff;
constexpr int kWidthPx = 600;
constexpr int kHeightPx = 2000; ///< of the page
constexpr int kViewPx = 410;

class Spots : public page::Picture {
public:
    QSize size() const override { return {10, 10}; }
    QImage image(QSize pixels) const override {
        ++asked;
        QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
        image.fill(0);
        for (int y = 0; y < pixels.height(); ++y)
            for (int x = y % 3; x < pixels.width(); x += 3)
                image.setPixel(x, y, qPremultiply(qRgba(x % 256, y % 256, 90, 40 + y % 200)));
        return image;
    }
    page::PictureFormat format() const override { return page::PictureFormat::Png; }
    const QByteArray& bytes() const override { return bytes_; }

    mutable int asked = 0;

private:
    QByteArray bytes_;
};

/// Pages with all that leaves ink, each part over others, and much of it where parts of the picture
/// may meet.
class RasterParts : public testing::Test {
protected:
    double upTo(double most) { return std::uniform_real_distribution(0.0, most)(random_); }

    void drawLetters() {
        static const QString kFaces[] = {"Arial", "Times New Roman", "Symbol"};
        surface.setFace(kFaces[random_() % 3]);
        surface.setFontPoints(8 + upTo(7)); // larger letters come out by shades differently
                                            // each time, for reasons of their outlines
        surface.setBold(random_() % 3 == 0);
        surface.setItalic(random_() % 4 == 0);
        surface.setUnderline(random_() % 4 == 0);
        surface.setInk(0xff000000 | (random_() & 0x7f7f7f));
        surface.setPenX(upTo(3000));
        surface.setPenY(upTo(kHeightPx) * 15);
        surface.print(QStringLiteral("Àgjp (Vitesse) d’un quart"));
    }
    void drawLine() {
        const double x = upTo(9000);
        const double y = upTo(kHeightPx) * 15;
        surface.setLineWidth(1 + static_cast<int>(random_() % 3));
        const int kind = static_cast<int>(random_() % 3);
        surface.line(x, y, kind == 0 ? x : upTo(9000),
                     kind == 1 ? y : y + (random_() % 10 == 0 ? 3000 : 400) - upTo(200));
    }
    void drawOther() {
        surface.fill(upTo(8000), upTo(kHeightPx) * 15, upTo(4000), upTo(1500),
                     0xff808080 | (random_() & 0xffffff),
                     random_() % 2 == 0 ? page::FillMode::Mask : page::FillMode::Copy);
        surface.setPenX(upTo(8000));
        surface.setPenY(upTo(kHeightPx) * 15);
        surface.paint(spots, 500 + upTo(1000), 500 + upTo(1000), QStringLiteral("f.png"), false);
    }
    void drawSome(int count) {
        for (int i = 0; i < count; ++i) {
            drawLetters();
            drawLine();
            if (i % 4 == 0)
                drawOther();
        }
    }

    /// All of it on one picture.
    QImage whole(double ratio) const {
        QImage image(qCeil(kWidthPx * ratio), qCeil((kHeightPx + kViewPx) * ratio),
                     QImage::Format_RGB32);
        image.fill(kWhite);
        QPainter painter(&image);
        output::OperationPainter operations(painter, fonts, ratio);
        for (const page::Operation& operation : recording.operations())
            std::visit(
                [&](const auto& drawing) {
                    if constexpr (requires { operations.draw(drawing); })
                        operations.draw(drawing);
                },
                operation);
        return image;
    }

    /// What a view shows that is scrolled to `top`.
    QImage view(int top) {
        const double ratio = raster.devicePixelRatio();
        QImage image(qCeil(kWidthPx * ratio), qCeil(kViewPx * ratio), QImage::Format_RGB32);
        image.fill(0xff00ff00);
        image.setDevicePixelRatio(ratio);
        QPainter painter(&image);
        painter.translate(0, -std::round(top * ratio) / ratio);
        raster.paint(painter, QRect(0, top, kWidthPx, kViewPx));
        return image;
    }
    QImage viewOf(const QImage& whole, int top) const {
        const double ratio = raster.devicePixelRatio();
        const int first = qRound(top * ratio);
        return whole.copy(0, first, whole.width(), qFloor(kViewPx * ratio));
    }
    void expectEachViewOf(const QImage& whole, std::initializer_list<int> tops) {
        for (const int top : tops) {
            const QImage expected = viewOf(whole, top);
            const QImage shown = view(top).copy(expected.rect());
            EXPECT_TRUE(shown == expected) << raster.devicePixelRatio() << ", at " << top;
        }
    }

    std::mt19937 random_{7};
    page::FontBook fonts;
    page::Recording recording;
    page::Surface surface{SurfaceId::PictureTexte, 9000, fonts, recording};
    output::RasterSurface raster{SurfaceId::PictureTexte, kWidthPx, fonts, kWhite};
    std::shared_ptr<Spots> spots = std::make_shared<Spots>();
};

TEST_F(RasterParts, showWhatThePageDrawnInOneShows) {
    drawSome(160);
    for (const double ratio : {1.0, 1.1, 1.5, 2.0, 3.2}) {
        raster.setDevicePixelRatio(ratio);
        raster.play(recording);
        expectEachViewOf(whole(ratio), {0, 39, 1590, 700, 448});
    }
}

TEST_F(RasterParts, takeUpWhatIsDrawnAfterTheyWereShown) {
    for (const double ratio : {1.0, 1.5, 3.2}) {
        recording.clear();
        raster.setDevicePixelRatio(ratio);
        for (const int top : {0, 1500, 300}) {
            drawSome(12);
            raster.play(recording);
            view(top);
        }
        surface.line(0, 200, 9000, kHeightPx * 15 - 200); // across all parts
        raster.play(recording);
        expectEachViewOf(whole(ratio), {0, 900, 1500});
    }
}

TEST_F(RasterParts, keepNothingOfThePageBefore) {
    raster.setDevicePixelRatio(1.5);
    for (int page = 0; page < 6; ++page) {
        recording.clear();
        raster.reset();
        surface.setFontPoints(12);
        drawSome(page % 2 == 0 ? 100 : 3);
        if (page == 3)
            surface.clear();
        raster.play(recording);
        QImage expected = whole(1.5);
        if (page == 3)
            expected.fill(kWhite);
        expectEachViewOf(expected, {0, 500, 900});
    }
}

TEST_F(RasterParts, areDrawnWhenTheyShow) {
    surface.setPenY(1500 * 15);
    surface.paint(spots, 300, 300, QStringLiteral("f.png"), false);
    raster.play(recording);
    EXPECT_EQ(raster.drawnHeightPx(), 1520);
    view(0);
    EXPECT_EQ(spots->asked, 0);
    view(1300);
    EXPECT_EQ(spots->asked, 1);
    view(1310);
    view(0);
    EXPECT_EQ(spots->asked, 1);
}

TEST_F(RasterParts, ofATallPageAreKeptWithinABound) {
    const int tall = static_cast<int>(page::kMaxSurfaceHeightPx);
    for (int y = 0; y < tall; y += 100)
        surface.line(0, y * 15.0, 150, y * 15.0);
    surface.line(0, 0, 9000, tall * 15.0); // no picture could hold all of it
    raster.setDevicePixelRatio(3.2);
    raster.play(recording);
    for (int top = 0; top < tall - kViewPx; top += 3600) {
        const QImage shown = view(top);
        EXPECT_NE(shown.pixel(0, 0), kWhite) << top;
        EXPECT_EQ(shown.pixel(0, 200), kWhite) << top;
        EXPECT_LE(raster.bytes(), 64'000'000) << top;
    }
    raster.reset();
    EXPECT_LE(raster.bytes(), 30'000'000);
}

} // namespace
