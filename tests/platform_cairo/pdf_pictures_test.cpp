#include "output/pdf/cairo_pictures.h"
#include "platform_cairo/pdf_bench.h"
#include "support/fake_pictures.h"

#include <QBuffer>
#include <QPainter>

namespace {

using page::PictureFormat;
using test_support::FilePicture;

class PdfPictures : public test_support::PdfBench {
protected:
    static QImage drawing(QImage::Format format) {
        QImage image(120, 80, format);
        image.fill(format == QImage::Format_RGB32 ? Qt::white : Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setBrush(QColor(255, 0, 0, 128));
        painter.drawEllipse(10, 10, 100, 60);
        return image;
    }

    static QByteArray saved(const QImage& image, const char* format) {
        QByteArray file;
        QBuffer buffer(&file);
        image.save(&buffer, format);
        return file;
    }

    void paint(const std::shared_ptr<FilePicture>& picture, double x, double y, double width,
               double height) {
        surface.setPenX(x);
        surface.setPenY(y);
        surface.paint(picture, width, height, QStringLiteral("image"), false);
    }

    /// Columns of `pdfimages -list`: type 2, width 3, height 4, encoding 8, object 10.
    QList<QStringList> images() const {
        QList<QStringList> rows;
        for (const QString& row : listed(QStringLiteral("pdfimages"), {QStringLiteral("-list")}))
            rows.append(row.simplified().split(u' '));
        return rows;
    }
};

TEST_F(PdfPictures, aPhotographPassesThroughOnce) {
    const QByteArray file = saved(drawing(QImage::Format_RGB32), "JPEG");
    const auto picture = std::make_shared<FilePicture>(file, PictureFormat::Jpeg);
    // The same bytes in another object, as another page loads them; sizes and shapes differ.
    const auto again = std::make_shared<FilePicture>(file, PictureFormat::Jpeg);
    paint(picture, 150, 150, 1800, 1200);
    const page::Sheet first = sheet();
    paint(again, 3000, 1500, 2100, 600);
    write({first, sheet(), sheet()});
    const auto rows = images();
    ASSERT_EQ(rows.size(), 5);
    for (const QStringList& row : rows) {
        EXPECT_EQ(row[8], QStringLiteral("jpeg"));
        EXPECT_EQ(row[10], rows[0][10]) << "stored twice";
    }
    EXPECT_EQ(picture->decoded + again->decoded, 0);
    run(QStringLiteral("pdfimages"),
        {QStringLiteral("-all"), QStringLiteral("-l"), QStringLiteral("1"), path(), path("out")});
    EXPECT_EQ(test_support::readFile(path(QStringLiteral("out-000.jpg"))), file);
}

TEST_F(PdfPictures, othersKeepEveryPixelAndTheirTransparency) {
    const QImage image = drawing(QImage::Format_ARGB32_Premultiplied);
    const auto picture = std::make_shared<FilePicture>(saved(image, "PNG"), PictureFormat::Png);
    surface.fill(0, 0, 9000, 6000, 0xffdce6ff, page::FillMode::Copy);
    paint(picture, 150, 150, 1800, 1200);
    paint(picture, 3000, 150, 1800, 1200);
    write({sheet(), sheet()});
    const auto rows = images();
    ASSERT_EQ(rows.size(), 8) << "a picture and its mask, twice on each page";
    for (const QStringList& row : rows) {
        EXPECT_EQ(row[3] + u'x' + row[4], QStringLiteral("120x80"));
        EXPECT_EQ(row[10], rows[0][10]);
    }
    EXPECT_EQ(picture->decoded, 1);
    run(QStringLiteral("pdfimages"), {QStringLiteral("-png"), path(), path("out")});
    const QImage mask(path(QStringLiteral("out-001.png")));
    for (const QPoint at : {QPoint(0, 0), QPoint(60, 40), QPoint(30, 20)})
        EXPECT_EQ(qGray(mask.pixel(at)), qAlpha(image.pixel(at)));
    const QImage page = shown();
    for (const int left : {10, 200}) {
        EXPECT_EQ(page.pixel(left + 1, 11), 0xffdce6ffu);
        EXPECT_NEAR(qRed(page.pixel(left + 60, 50)), 238, 2);
        EXPECT_NEAR(qBlue(page.pixel(left + 60, 50)), 127, 2);
    }
}

TEST_F(PdfPictures, photographsOfOtherKindsAndBrokenOnes) {
    // A file that only its name calls a photograph; one with nothing behind its header.
    const auto painted = std::make_shared<FilePicture>(saved(drawing(QImage::Format_RGB32), "PNG"),
                                                       PictureFormat::Jpeg);
    const auto broken = std::make_shared<FilePicture>(QByteArray("GIF89a"), PictureFormat::Gif);
    paint(painted, 150, 150, 1800, 1200);
    paint(broken, 3000, 150, 1800, 1200);
    write({sheet()});
    const auto rows = images();
    ASSERT_EQ(rows.size(), 1);
    EXPECT_EQ(rows[0][8], QStringLiteral("image"));
    EXPECT_NEAR(qBlue(shown().pixel(70, 50)), 127, 2);
}

TEST_F(PdfPictures, drawingsBecomeFinePixels) {
    const auto drawn = std::make_shared<FilePicture>(saved(drawing(QImage::Format_RGB32), "PNG"),
                                                     PictureFormat::Svg);
    paint(drawn, 150, 150, 360, 240);
    paint(drawn, 150, 900, 360, 240);
    paint(drawn, 0, 0, 9000, 6000);
    write({sheet()});
    const auto rows = images();
    ASSERT_EQ(rows.size(), 3);
    EXPECT_EQ(rows[0][3] + u'x' + rows[0][4], QStringLiteral("96x64"));
    EXPECT_EQ(rows[0][10], rows[1][10]);
    EXPECT_GE(rows[2][3].toInt(), 3 * 600);
    EXPECT_LE(rows[2][3].toInt() * rows[2][4].toInt(), 4'000'000);
}

TEST(CairoPictures, aPageHoldsABoundedNumberOfPixels) {
    output::CairoPictures pictures(600'000);
    std::vector<std::shared_ptr<test_support::PlainPicture>> page;
    const auto widthOf = [&](std::size_t at) {
        cairo_surface_t* surface = pictures.surface(page[at], {100, 100});
        return surface ? cairo_image_surface_get_width(surface) : 0;
    };
    for (int i = 0; i < 12; ++i)
        page.push_back(std::make_shared<test_support::PlainPicture>(QSize(300, 300)));
    QList<int> widths;
    for (std::size_t at = 0; at < page.size(); ++at)
        widths.append(widthOf(at));
    EXPECT_EQ(widths, (QList<int>{300, 100, 100, 100, 100, 100, 100, 0, 0, 0, 0, 0}));
    for (const std::size_t at : {0, 1, 7})
        EXPECT_EQ(widthOf(at), widths[qsizetype(at)]) << "shown again";
    pictures.endPage();
    EXPECT_EQ(widthOf(8), 300);
}

} // namespace
