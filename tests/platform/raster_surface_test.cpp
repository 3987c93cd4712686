#include "output/raster/raster_surface.h"
#include "page/readable_text.h"
#include "page/surface.h"

#include <QPainter>

#include <gtest/gtest.h>

namespace {

using page::SurfaceId;

constexpr QRgb kWhite = 0xffffffff;
constexpr QRgb kBlack = 0xff000000;
constexpr QRgb kTint = 0xffdce6ff;

class Raster : public testing::Test {
protected:
    int inked(const QImage& image, const QRect& area) const {
        int count = 0;
        for (int y = area.top(); y <= area.bottom(); ++y)
            for (int x = area.left(); x <= area.right(); ++x)
                count += image.pixel(x, y) != kWhite;
        return count;
    }

    page::FontBook fonts;
    page::Recording recording;
    page::Surface surface{SurfaceId::PictureTexte, 9000, fonts, recording};
    output::RasterSurface raster{SurfaceId::PictureTexte, 600, fonts, kWhite};
};

TEST_F(Raster, textStandsWhereItWasPrinted) {
    surface.setPenX(1500);
    surface.setPenY(3000);
    surface.print(QStringLiteral("Xg"));
    raster.play(recording);
    const QImage image = raster.image(400);
    const int width = qRound(surface.textWidth(u"Xg") / 15);
    EXPECT_EQ(inked(image, QRect(0, 0, 600, 200)), 0);
    EXPECT_GT(inked(image, QRect(100, 200, width, 15)), 20);
    EXPECT_EQ(inked(image, QRect(0, 200, 99, 20)), 0);
    EXPECT_EQ(inked(image, QRect(101 + width, 200, 400, 20)), 0);
    EXPECT_EQ(inked(image, QRect(0, 215, 600, 185)), 0);
}

TEST_F(Raster, linesAndFillsCoverWholePixels) {
    surface.line(150, 150, 300, 150);
    surface.fill(0, 300, 150, 150, kTint, page::FillMode::Copy);
    for (const double ratio : {1.0, 2.0}) {
        raster.setDevicePixelRatio(ratio);
        raster.play(recording);
        const QImage image = raster.image(40);
        const int r = qRound(ratio);
        // Both ends count.
        EXPECT_EQ(inked(image, QRect(0, 0, 600 * r, 20 * r)), 11 * r * r);
        EXPECT_EQ(image.pixel(10 * r, 10 * r), kBlack);
        EXPECT_EQ(inked(image, QRect(0, 20 * r, 600 * r, 20 * r)), 100 * r * r);
        EXPECT_EQ(image.pixel(10 * r - 1, 30 * r - 1), kTint);
    }
}

TEST_F(Raster, aMaskFillLeavesTextVisible) {
    surface.fill(0, 0, 300, 300, kBlack, page::FillMode::Copy);
    surface.fill(0, 0, 600, 300, kTint, page::FillMode::Mask);
    surface.fill(0, 0, 600, 300, 0xffffff90, page::FillMode::Mask);
    raster.play(recording);
    const QImage image = raster.image(20);
    EXPECT_EQ(image.pixel(5, 5), kBlack);
    EXPECT_EQ(image.pixel(30, 5), kTint & 0xffffff90);
}

TEST_F(Raster, growsWithoutLosingWhatStands) {
    for (int line = 0; line < 500; ++line) {
        surface.line(0, line * 300, 15, line * 300);
        raster.play(recording);
    }
    const QImage image = raster.image(10000);
    EXPECT_EQ(inked(image, QRect(0, 0, 600, 10000)), 500 * 2);
}

TEST_F(Raster, whatIsFarOutsideCostsNothing) {
    surface.setPenY(3e38);
    surface.print(QStringLiteral("x"));
    surface.setPenY(-3e38);
    surface.print(QStringLiteral("x"));
    surface.line(-3e38, 0, 3e38, 0);
    surface.fill(0, 0, 1e30, 1e30, kTint, page::FillMode::Copy);
    surface.fill(0, 3e9, 15, 15, kTint, page::FillMode::Copy);
    surface.setPenY(0);
    raster.play(recording);
    EXPECT_LE(raster.drawnHeightPx(), page::kMaxSurfaceHeightPx);
    EXPECT_EQ(raster.image(1).pixel(599, 0), kTint);
}

TEST_F(Raster, paintedPartByPartItShowsTheSamePixels) {
    surface.setFontPoints(14);
    surface.print(QStringLiteral("Une phrase en travers de toutes les parties de la page"));
    surface.line(0, 10, 9000, 1500);
    for (const double ratio : {1.0, 1.1, 1.5, 2.5, 3.2}) {
        raster.setDevicePixelRatio(ratio);
        raster.play(recording);
        const QImage whole = raster.image(100);
        QImage parts(whole.size(), QImage::Format_RGB32);
        parts.fill(kTint);
        parts.setDevicePixelRatio(ratio);
        QPainter painter(&parts);
        for (int x = 0; x < 600; x += 67)
            for (int y = 0; y < 100; y += 7) {
                painter.setClipRect(QRect(x, y, 67, 7));
                raster.paint(painter, QRect(x, y, 67, 7));
            }
        painter.end();
        EXPECT_GT(inked(whole, whole.rect()), 500) << ratio;
        EXPECT_TRUE(parts == whole) << ratio;
    }
}

TEST_F(Raster, clearingWipesAndOtherSurfacesDoNotShow) {
    page::Surface other(SurfaceId::Titre, 9000, fonts, recording);
    other.print(QStringLiteral("titre"));
    raster.play(recording);
    EXPECT_TRUE(raster.isBlank());
    surface.print(QStringLiteral("texte"));
    raster.play(recording);
    EXPECT_FALSE(raster.isBlank());
    surface.clear();
    raster.play(recording);
    EXPECT_TRUE(raster.isBlank());
    EXPECT_EQ(inked(raster.image(50), QRect(0, 0, 600, 50)), 0);
}

TEST_F(Raster, readableTextFollowsTheLines) {
    surface.setFontPoints(12);
    surface.print(QStringLiteral("H"));
    surface.setFontPoints(8);
    surface.setPenY(80);
    surface.print(QStringLiteral("2"));
    surface.setFontPoints(12);
    surface.setPenY(0);
    surface.print(QStringLiteral("O"));
    surface.setPenX(6000);
    surface.print(QStringLiteral("à droite"));
    surface.setPenX(0);
    surface.setPenY(800);
    surface.setFace(QStringLiteral("Symbol"));
    surface.print(QStringLiteral("l"));
    EXPECT_EQ(page::readableText(recording, SurfaceId::PictureTexte),
              QStringLiteral("H2O à droite\nλ\n"));
    surface.clear();
    EXPECT_EQ(page::readableText(recording, SurfaceId::PictureTexte), QString());
}

} // namespace
