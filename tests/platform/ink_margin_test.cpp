#include "output/raster/raster_surface.h"
#include "output/svg/svg_file.h"
#include "page/ink_area.h"
#include "platform/sheets.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using page::SurfaceId;

constexpr QRgb kWhite = 0xffffffff;
constexpr int kMarginPx = 8;
constexpr double kRatios[] = {1, 1.5, 2};

struct Type {
    const char* face;
    double points;
};

/// Feet, accents and the faces whose ink reaches furthest out of their lines.
constexpr Type kTypes[] = {{"Arial", 8},     {"Arial", 10},           {"Arial", 12},
                           {"Arial", 24},    {"Times new roman", 12}, {"Times new roman", 20},
                           {"Symbol", 8},    {"Symbol", 14},          {"Comic Sans MS", 11},
                           {"Wingdings", 12}};

int inked(const QImage& image) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += image.pixel(x, y) != kWhite;
    return count;
}

/// A surface that ends where the line on it does.
class InkMargin : public testing::Test {
protected:
    void use(const Type& type) {
        surface.setFace(QString::fromLatin1(type.face));
        surface.setFontPoints(type.points);
    }
    void print(double x, double y, const QString& words) {
        surface.setPenX(x);
        surface.setPenY(y);
        surface.print(words);
    }

    /// The surface as the window shows it: the picture, and what leans out of it.
    QImage shown(int heightPx, double ratio) {
        output::RasterSurface raster(SurfaceId::PictureTexte, kWidthPx, fonts, kWhite);
        raster.setDevicePixelRatio(ratio);
        raster.play(recording);
        QImage whole = paper(heightPx, ratio);
        QPainter painter(&whole);
        painter.translate(kMarginPx * ratio, kMarginPx * ratio);
        QImage inside = raster.image(heightPx);
        inside.setDevicePixelRatio(1);
        painter.drawImage(0, 0, inside);
        raster.paintMargin(
            painter, recording, heightPx,
            QRect(0, 0, kWidthPx, heightPx).adjusted(-kMarginPx, -kMarginPx, kMarginPx, kMarginPx));
        return whole;
    }

    /// The same as a file has it.
    QImage filed(int heightPx, double ratio) { return sheetRaster(sheet(heightPx), ratio); }

    /// The ink of what stands on the surface when nothing cuts it.
    int allInk(double ratio) {
        page::Sheet wide = sheet(400);
        wide.surfaces[0] = {SurfaceId::PictureTexte, 3000, 3000, 9000, 9000};
        for (page::DrawnOperation& operation : wide.operations)
            if (auto* text = std::get_if<page::TextOperation>(&operation)) {
                text->x += 750;
                text->y += 750;
            }
        wide.width = wide.height = 15000;
        return inked(sheetRaster(wide, ratio));
    }

    page::Sheet sheet(double heightPx) {
        constexpr double kMargin = page::kInkMargin;
        page::Sheet sheet{};
        sheet.width = kWidthPx * 15 + 2 * kMargin;
        sheet.height = heightPx * 15 + 2 * kMargin;
        sheet.surfaces = {
            {SurfaceId::PictureTexte, kMargin, kMargin, kWidthPx * 15., heightPx * 15}};
        page::putOnSheet(recording, fonts, sheet);
        return sheet;
    }

    static QImage paper(int heightPx, double ratio) {
        QImage paper(qCeil((kWidthPx + 2 * kMarginPx) * ratio),
                     qCeil((heightPx + 2 * kMarginPx) * ratio), QImage::Format_RGB32);
        paper.fill(kWhite);
        return paper;
    }

    QImage sheetRaster(const page::Sheet& drawn, double ratio) {
        output::SheetRaster raster(fonts, ratio);
        QImage whole(raster.size(drawn), QImage::Format_RGB32);
        QPainter painter(&whole);
        for (int top = 0; top < whole.height(); top += raster.bandRows(drawn))
            painter.drawImage(0, top, raster.band(drawn, top));
        return whole;
    }

    static constexpr int kWidthPx = 300;
    page::FontBook fonts;
    page::Recording recording;
    page::Surface surface{SurfaceId::PictureTexte, kWidthPx * 15, fonts, recording};
};

TEST_F(InkMargin, aLineAloneOnItsSurfaceShowsAllOfItsInk) {
    for (const Type& type : kTypes)
        for (const double ratio : kRatios) {
            recording.clear();
            use(type);
            print(0, 0, QStringLiteral("ÎÂgjyp{|"));
            const int height = qCeil(surface.textHeight() / 15);
            const int ink = allInk(ratio);
            EXPECT_GT(ink, 40);
            EXPECT_EQ(inked(shown(height, ratio)), ink) << type.face << type.points << ratio;
            EXPECT_EQ(inked(filed(height, ratio)), ink) << type.face << type.points << ratio;
        }
}

TEST_F(InkMargin, nothingOfAPageStaysOnTheNext) {
    const auto drawFull = [&](const Type& type, bool isText) {
        use(type);
        if (isText)
            print(0, 0, QStringLiteral("gypaète jaune {|}"));
        else
            surface.line(0, 0, 900, surface.textHeight());
    };
    for (const Type& type : kTypes)
        for (const double ratio : kRatios)
            for (const bool isText : {true, false}) {
                output::RasterSurface raster(SurfaceId::PictureTexte, kWidthPx, fonts, kWhite);
                raster.setDevicePixelRatio(ratio);
                recording.clear();
                drawFull(type, isText);
                raster.play(recording);
                const int height = raster.drawnHeightPx() + 40;
                EXPECT_GT(inked(raster.image(height)), 20);
                surface.clear();
                surface.fill(0, 0, 15, 15, 0xff000000, page::FillMode::Copy);
                raster.play(recording);
                EXPECT_EQ(inked(raster.image(height)), inked(raster.image(1)))
                    << type.face << type.points << ratio << isText;
            }
}

TEST_F(InkMargin, bordersAtTheEdgesShow) {
    constexpr double kRight = kWidthPx * 15;
    surface.line(0, 300, kRight, 300);    // at the foot
    surface.line(kRight, 0, kRight, 300); // at the right
    surface.line(150, -45, 450, -45);     // the bar of a vector on a first line
    for (const double ratio : {1., 2.}) {
        const int r = qRound(ratio);
        EXPECT_EQ(inked(shown(20, ratio)), (301 + 20 + 21) * r * r);
        EXPECT_EQ(inked(filed(20, ratio)), (301 + 20 + 21) * r * r);
    }
    const QByteArray document = output::svgDocument(sheet(20), fonts, {});
    EXPECT_TRUE(document.contains("<rect x=\"0\" y=\"20\" width=\"301\" height=\"1\"/>"))
        << document.constData();
    EXPECT_TRUE(document.contains("<rect x=\"300\" y=\"0\" width=\"1\" height=\"21\"/>"));
}

TEST_F(InkMargin, whatStandsBeyondTheSurfaceDoesNotShow) {
    const double line = surface.textHeight();
    print(0, 0, QStringLiteral("a"));
    const int one = inked(shown(qCeil(line / 15), 1));
    print(0, line, QStringLiteral("Ébène")); // its line was never ended
    surface.fill(0, line, 900, 900, 0xffdce6ff, page::FillMode::Copy);
    surface.fill(-900, -900, 900, 900, 0xffdce6ff, page::FillMode::Copy);
    surface.line(0, line + 30, 900, line + 30);
    const int height = qCeil(line / 15);
    EXPECT_EQ(inked(shown(height, 1)), one);
    EXPECT_EQ(inked(filed(height, 1)), one);
    EXPECT_FALSE(output::svgDocument(sheet(height), fonts, {}).contains("Ébène"));
    EXPECT_TRUE(page::isBelow({SurfaceId::PictureTexte, 0, line, "É", {}, 0, 0}, line));
    EXPECT_FALSE(page::isBelow({SurfaceId::PictureTexte, 0, 0, "É", {}, 0, 0}, line));
}

TEST_F(InkMargin, aLineWithMostOfItBeyondIsCutAtTheEdge) {
    print(0, 15 * 15, QStringLiteral("ÉM"));
    for (const QImage& image : {shown(20, 1), filed(20, 1)}) {
        EXPECT_GT(inked(image.copy(0, kMarginPx, image.width(), 20)), 0);
        EXPECT_EQ(inked(image.copy(0, kMarginPx + 20, image.width(), kMarginPx)), 0);
    }
}

TEST_F(InkMargin, whatIsTooWideIsCutAtTheEdge) {
    print(0, 0, QString(200, u'M'));
    surface.fill(3000, 0, 9000, 300, 0xffdce6ff, page::FillMode::Mask);
    for (const QImage& image : {shown(20, 1), filed(20, 1)})
        EXPECT_EQ(inked(image.copy(kMarginPx + kWidthPx, 0, kMarginPx, image.height())), 0);
    const QByteArray document = output::svgDocument(sheet(20), fonts, {});
    EXPECT_TRUE(document.contains("clip-path=\"url(#c2)\" textLength"));
    EXPECT_TRUE(document.contains("width=\"100\" height=\"20\" fill=\"#dce6ff\" class=\"m\""));
}

} // namespace
