#include "output/raster/raster_surface.h"
#include "page/surface.h"

#include <gtest/gtest.h>

namespace {

using page::SurfaceId;

constexpr QRgb kWhite = 0xffffffff;

/// A blue square with a hole: its lower right quarter is transparent. Keeps what it was asked for.
class Square : public page::Picture {
public:
    QSize size() const override { return {10, 10}; }
    QImage image(QSize pixels) const override {
        asked = pixels;
        QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
        image.fill(0xff0000ff);
        for (int y = pixels.height() / 2; y < pixels.height(); ++y)
            for (int x = pixels.width() / 2; x < pixels.width(); ++x)
                image.setPixel(x, y, 0);
        return image;
    }
    page::PictureFormat format() const override { return page::PictureFormat::Png; }
    const QByteArray& bytes() const override { return bytes_; }

    mutable QSize asked;

private:
    QByteArray bytes_;
};

class RasterPictures : public testing::Test {
protected:
    /// Paints the square, sizes and positions in pixels, and shows the top of the surface.
    void paint(double x, double y, double side) {
        surface.setPenX(x * 15);
        surface.setPenY(y * 15);
        surface.paint(square, side * 15, side * 15, QStringLiteral("f.png"), false);
        raster.play(recording);
        raster.image(1);
    }
    QRgb at(int x, int y) { return raster.image(y + 1).pixel(x, y); }

    page::FontBook fonts;
    page::Recording recording;
    page::Surface surface{SurfaceId::PictureTexte, 9000, fonts, recording};
    output::RasterSurface raster{SurfaceId::PictureTexte, 600, fonts, kWhite};
    std::shared_ptr<Square> square = std::make_shared<Square>();
};

TEST_F(RasterPictures, standWhereTheyWerePaintedInTheDensityOfTheScreen) {
    surface.fill(0, 0, 9000, 1500, 0xffff0000, page::FillMode::Copy);
    for (const int ratio : {1, 3}) {
        raster.setDevicePixelRatio(ratio);
        paint(20, 30, 40);
        EXPECT_EQ(square->asked, QSize(40, 40) * ratio);
        EXPECT_EQ(at(20 * ratio, 30 * ratio), 0xff0000ff);
        EXPECT_EQ(at(20 * ratio - 1, 30 * ratio), 0xffff0000);
        EXPECT_EQ(at(60 * ratio - 1, 50 * ratio - 1), 0xff0000ff);
        EXPECT_EQ(at(60 * ratio - 1, 70 * ratio - 1), 0xffff0000); // seen through the hole
        EXPECT_EQ(at(60 * ratio, 40 * ratio), 0xffff0000);
    }
}

TEST_F(RasterPictures, areCutAtTheEdges) {
    paint(590, -30, 40);
    EXPECT_EQ(at(590, 9), 0xff0000ff);
    EXPECT_EQ(at(589, 9), kWhite);
    EXPECT_EQ(raster.drawnHeightPx(), 10);
    paint(-30, -8, 40);
    EXPECT_EQ(at(5, 5), 0xff0000ff);
    EXPECT_EQ(at(5, 20), kWhite);
    square->asked = {};
    for (const auto& [x, y] : {std::pair(700, 0), std::pair(-50, 0), std::pair(0, -50)})
        paint(x, y, 40);
    EXPECT_EQ(square->asked, QSize()); // nothing of them shows
    raster.setDevicePixelRatio(3);
    paint(0, 39'990, 40);
    EXPECT_LE(raster.drawnHeightPx(), page::kMaxSurfaceHeightPx);
}

TEST_F(RasterPictures, stretchedOnesCostNoMoreThanABound) {
    raster.setDevicePixelRatio(3);
    paint(0, 0, 999);
    EXPECT_EQ(square->asked, QSize(2997, 2997));
    raster.setDevicePixelRatio(4);
    for (const double side : {32767.0 / 15, 500'000.0}) {
        paint(0, 0, side);
        EXPECT_LE(square->asked.width() * square->asked.height(), 16'000'000);
        EXPECT_EQ(at(0, 0), 0xff0000ff);
    }
}

} // namespace
