#include "platform_cairo/pdf_bench.h"

#include <QBuffer>

namespace {

/// Compares what poppler shows of a page with the screen's picture.
class PdfLook : public test_support::PdfBench {
protected:
    static int farthestChannel(QRgb a, QRgb b) {
        return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                         std::abs(qBlue(a) - qBlue(b))});
    }

    /// Pixels of `area` that differ by more than `levels` of 255 in a channel.
    static int different(const QImage& a, const QImage& b, const QRect& area, int levels) {
        int count = 0;
        for (int y = area.top(); y <= area.bottom(); ++y)
            for (int x = area.left(); x <= area.right(); ++x)
                count += farthestChannel(a.pixel(x, y), b.pixel(x, y)) > levels;
        return count;
    }

    /// Pixels of `area` that are not paper.
    static int inked(const QImage& image, const QRect& area, QRgb paper = 0xffffffff) {
        int count = 0;
        for (int y = area.top(); y <= area.bottom(); ++y)
            for (int x = area.left(); x <= area.right(); ++x)
                count += farthestChannel(image.pixel(x, y), paper) > 64;
        return count;
    }

    void compare() {
        write({sheet()});
        pdf = shown();
        screen = onScreen();
        ASSERT_EQ(pdf.size(), screen.size());
    }

    QImage pdf, screen;
};

TEST_F(PdfLook, fillsAndLinesArePixelForPixelThose) {
    surface.fill(150, 150, 3000, 600, 0xffdce6ff, page::FillMode::Copy);
    surface.fill(0, 300, 600, 150, 0xffffff90, page::FillMode::Mask);
    surface.fill(155, 900, 148, 301, 0xff804020, page::FillMode::Copy);
    for (int i = 0; i < 60; ++i) // a gradient whose strips are no whole pixels
        surface.fill(4000, 150 + i * 33.3, 3000, 33.3, qRgb(255, 255, 200 + 55 * i / 60),
                     page::FillMode::Copy);
    for (int i = 0; i < 60; ++i)
        surface.fill(4000, 3000 + i * 15, 3000, 15, qRgb(255, 255, 200 + 55 * i / 60),
                     page::FillMode::Mask);
    surface.line(150, 2000, 3000, 2000);
    surface.setLineWidth(3);
    surface.line(3007, 2000, 3007, 2400);
    surface.line(150, 2500, 150, 2500);
    compare();
    EXPECT_EQ(different(pdf, screen, pdf.rect(), 2), 0);
    EXPECT_EQ(pdf.pixel(20, 22), 0xffdce6ff & 0xffffff90) << "fill over fill";
}

TEST_F(PdfLook, noPaperShowsBetweenTheStripsOfAGradient) {
    for (int i = 0; i < 100; ++i)
        surface.fill(0, i * 45, 9000, 45, 0xff000080, page::FillMode::Copy);
    write({sheet()});
    // A reader that blends edges which are no pixels of its own, as most do; poppler moves them.
    run(QStringLiteral("mutool"),
        {QStringLiteral("draw"), QStringLiteral("-r"), QStringLiteral("83"), QStringLiteral("-c"),
         QStringLiteral("rgb"), QStringLiteral("-o"), path(QStringLiteral("p.png")), path()});
    const QImage page(path(QStringLiteral("p.png")));
    ASSERT_FALSE(page.isNull());
    const int x = page.width() / 2;
    for (int y = page.height() / 5; y < page.height() / 2; ++y)
        EXPECT_LE(farthestChannel(page.pixel(x, y), 0xff000080), 2) << y;
}

TEST_F(PdfLook, picturesUnderMaskFillsHaveTheColoursOfTheScreen) {
    // In squares of ten pixels, since readers move the edges of pictures; the lowest see-through.
    QImage colours(60, 40, QImage::Format_ARGB32);
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 60; ++x)
            colours.setPixel(x, y, y < 30 ? qRgb(x / 10 * 50, y / 10 * 110, 255 - x / 10 * 45) : 0);
    QByteArray bytes;
    QBuffer file(&bytes);
    ASSERT_TRUE(colours.save(&file, "png"));
    const auto picture =
        std::make_shared<test_support::FilePicture>(bytes, page::PictureFormat::Png);
    const auto paint = [&](double x, double y, double width, double height) {
        surface.setPenX(x);
        surface.setPenY(y);
        surface.paint(picture, width, height, {}, false);
    };
    surface.fill(0, 0, 9000, 1500, 0xffffff90, page::FillMode::Copy);
    paint(150, 150, 900, 600);
    paint(1500, 195, 1800, 1200); // stretched
    paint(4500, 150, 900, 600);
    paint(6000, 150, 900, 600); // no fill touches it
    surface.fill(300, 300, 2400, 300, 0xffdce6c8, page::FillMode::Mask);
    surface.fill(0, 450, 4000, 300, 0xff80a0f0, page::FillMode::Mask);
    surface.fill(4500, 150, 900, 600, 0xff643296, page::FillMode::Mask);
    compare();
    const struct {
        int left, top, scale;
    } places[] = {{10, 10, 1}, {100, 13, 2}, {300, 10, 1}, {400, 10, 1}};
    for (const auto& place : places)
        for (int y = 5; y < 30; y += 10)
            for (int x = 5; x < 60; x += 10) {
                const QPoint at(place.left + x * place.scale, place.top + y * place.scale);
                // Where two fills overlap in part, they are multiplied.
                if (QRect(20, 30, 160, 10).contains(at))
                    continue;
                EXPECT_LE(farthestChannel(pdf.pixel(at), screen.pixel(at)), 2)
                    << at.x() << ' ' << at.y();
            }
    EXPECT_EQ(pdf.pixel(405, 45), 0xffffff90u) << "what shines through";
}

TEST_F(PdfLook, textUnderAMaskFillStaysInItsInk) {
    surface.setFontPoints(16);
    surface.setFace(QStringLiteral("Wingdings")); // large blots, to have pixels without edges
    surface.setInk(0xffc86432);
    print(150, 150, QStringLiteral("nnn"));
    surface.setInk(0xff000000);
    print(3000, 150, QStringLiteral("nnn"));
    surface.fill(0, 150, 6000, 360, 0xffdce6ff, page::FillMode::Mask);
    compare();
    const QRect coloured(12, 10, 60, 20);
    EXPECT_GT(inked(screen, coloured, 0xffdce6ff), 300);
    EXPECT_LT(different(pdf, screen, pdf.rect(), 64), 120) << "edges only";
    int exact = 0;
    for (int y = coloured.top(); y <= coloured.bottom(); ++y)
        for (int x = coloured.left(); x <= coloured.right(); ++x)
            exact += farthestChannel(pdf.pixel(x, y), 0xffc86432 & 0xffdce6ff) <= 1;
    EXPECT_GT(exact, 200);
}

TEST_F(PdfLook, inkLeansOutOfASurfaceAndNothingElseDoes) {
    surface.setFace(QStringLiteral("Times new roman"));
    surface.setFontPoints(20);
    print(0, 0, QStringLiteral("ÎÂgjypI"));
    const double line = surface.textHeight();
    surface.line(0, line, 9000, line);
    const std::size_t standing = recording.size();
    print(0, line, QStringLiteral("Ébène")); // its line was never ended
    surface.fill(0, line, 3000, 300, 0xff804020, page::FillMode::Copy);
    page::Sheet exact = sheet();
    exact.surfaces[0].height = line;
    // The same in the middle of a large surface.
    page::Sheet free = exact;
    free.operations.resize(standing);
    free.surfaces[0] = {page::SurfaceId::PictureTexte, 0, 0, 12000, 6000};
    for (page::DrawnOperation& operation : free.operations)
        operation = page::moved(operation, kLeft, kTop);
    write({free});
    const QImage all = page();
    write({exact});
    EXPECT_GT(inked(all, all.rect()), 600);
    EXPECT_EQ(different(page(), all, all.rect(), 2), 0);
    EXPECT_FALSE(text().contains(u"Ébène"));
}

TEST_F(PdfLook, textHasTheWeightAndSlantOfTheScreen) {
    surface.setFontPoints(14);
    const char* const faces[] = {"Arial", "Times new roman", "Symbol", "Wingdings",
                                 "Comic Sans MS"};
    const QString words = QStringLiteral("lunWab n");
    int row = 0;
    for (const char* face : faces)
        for (const int style : {0, 1, 2, 3}) {
            surface.setFace(QString::fromLatin1(face));
            surface.setBold(style & 1);
            surface.setItalic(style & 2);
            surface.setUnderline(style == 1);
            print(150 + 2200 * style, 150 + 600 * row, words);
            row += style == 3;
        }
    compare();
    for (row = 0; row < 5; ++row)
        for (const int style : {0, 1, 2, 3}) {
            const QRect cell(10 + 147 * style, 8 + 40 * row, 140, 34);
            const int here = inked(pdf, cell);
            const int there = inked(screen, cell);
            EXPECT_GT(there, 100);
            EXPECT_NEAR(here, there, .12 * there) << faces[row] << style;
            // Upright letters in place of slanted ones would differ in about half of the ink.
            EXPECT_LT(different(pdf, screen, cell, 128), .25 * there) << faces[row] << style;
        }
}

} // namespace
