#include "page/pictures/picture_file.h"
#include "support/files.h"

#include <QBuffer>
#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <random>

namespace {

using page::PictureFormat;
using page::pictureFrom;

/// Red to the left, green to the right; with alpha, the lower half transparent.
QImage halves(int width, int height, bool alpha = false) {
    QImage image(width, height, alpha ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y,
                           alpha && 2 * y >= height ? 0
                           : 2 * x < width          ? 0xffff0000
                                                    : 0xff00ff00);
    return image;
}

QByteArray file(const QImage& image, const char* format) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    EXPECT_TRUE(image.save(&buffer, format, 90));
    return bytes;
}

/// A GIF of 2 x 1 pixels, red and transparent, with a second frame that is blue. Codes of the
/// pictures are 3 bits: clear (4), the two pixels, end (5).
const QByteArray kGif = QByteArray::fromHex("474946383961"
                                            "0200"
                                            "0100"
                                            "910000"
                                            "ff0000"
                                            "00ff00"
                                            "0000ff"
                                            "000000"
                                            "21f9040105000100"
                                            "2c00000000"
                                            "0200"
                                            "0100"
                                            "00"
                                            "02"
                                            "02"
                                            "440a"
                                            "00"
                                            "21f9040005000000"
                                            "2c00000000"
                                            "0200"
                                            "0100"
                                            "00"
                                            "02"
                                            "02"
                                            "940a"
                                            "00"
                                            "3b");

QByteArray svg(const QByteArray& attributes, const QByteArray& content = {}) {
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" "
           "xmlns:xlink=\"http://www.w3.org/1999/xlink\" " +
           attributes + ">" + content + "</svg>";
}

std::string hex(QRgb pixel) {
    return QString::number(pixel, 16).toStdString();
}

TEST(PictureFile, tellsFormatsByWhatIsInThem) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("schema.txt");
    const std::vector<std::pair<QByteArray, PictureFormat>> files{
        {file(halves(40, 20), "bmp"), PictureFormat::Bmp},
        {file(halves(40, 20), "jpg"), PictureFormat::Jpeg},
        {file(halves(40, 20), "png"), PictureFormat::Png},
        {svg("width='40' height='20'", "<path fill='#f00' d='M0 0h20v20H0z'/>"
                                       "<path fill='#0f0' d='M20 0h20v20H20z'/>"),
         PictureFormat::Svg}};
    for (const auto& [bytes, format] : files) {
        test_support::writeFile(path, bytes);
        const auto picture = page::loadPicture(path);
        ASSERT_TRUE(picture) << static_cast<int>(format);
        EXPECT_EQ(picture->format(), format);
        EXPECT_EQ(picture->bytes(), bytes);
        EXPECT_EQ(picture->size(), QSize(40, 20));
        for (const QSize size : {QSize(40, 20), QSize(90, 10)}) {
            const QImage image = picture->image(size);
            ASSERT_EQ(image.size(), size);
            EXPECT_NEAR(qRed(image.pixel(4, 4)), 255, 4);
            EXPECT_NEAR(qGreen(image.pixel(4, 4)), 0, 4);
            EXPECT_NEAR(qGreen(image.pixel(size.width() - 5, 5)), 255, 4);
        }
    }
    EXPECT_FALSE(page::loadPicture(folder.filePath("none")));
    EXPECT_FALSE(page::loadPicture(folder.path()));
    EXPECT_FALSE(page::loadPicture("   "));
}

TEST(PictureFile, keepsWhatIsTransparent) {
    const auto png = pictureFrom(file(halves(40, 20, true), "png"));
    for (const QSize size : {QSize(40, 20), QSize(20, 10)}) {
        const QImage image = png->image(size);
        EXPECT_EQ(image.format(), QImage::Format_ARGB32_Premultiplied);
        EXPECT_EQ(hex(image.pixel(2, 2)), "ffff0000");
        EXPECT_EQ(image.pixel(2, size.height() - 2), 0u);
    }
    const QImage gif = pictureFrom(kGif)->image({2, 1});
    EXPECT_EQ(hex(gif.pixel(0, 0)), "ffff0000"); // of the first frame
    EXPECT_EQ(gif.pixel(1, 0), 0u);
    const QImage drawing =
        pictureFrom(svg("width='9' height='9'", "<path d='M0 0h4v9H0z'/>"))->image({9, 9});
    EXPECT_EQ(hex(drawing.pixel(1, 1)), "ff000000");
    EXPECT_EQ(drawing.pixel(7, 1), 0u);
    const QImage slope =
        pictureFrom(svg("width='9' height='9'", "<path d='M0 0L9 9H0z'/>"))->image({90, 90});
    EXPECT_EQ(hex(slope.pixel(45, 45)), "80000000"); // its edge is smooth
}

TEST(PictureFile, showsPhotosAsTheirPixelsLie) {
    QByteArray bytes = file(halves(40, 20), "jpg");
    // Exif: little-endian, one entry, orientation 6 (turned by a quarter).
    bytes.insert(2, QByteArray::fromHex("ffe10022"
                                        "457869660000"
                                        "49492a0008000000"
                                        "0100"
                                        "1201030001000000"
                                        "06000000"
                                        "00000000"));
    const auto picture = pictureFrom(bytes);
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->size(), QSize(40, 20));
}

TEST(PictureFile, svgSizesAreThoseOfTheFile) {
    const std::vector<std::pair<QByteArray, QSize>> rows{
        {"width='30' height='20px'", {30, 20}},
        {"width='25.4mm' height='1in'", {96, 96}},
        {"width='72pt' height='2.54cm'", {96, 96}},
        {"width='1pc' height='0.1' ", {16, 1}},
        {"viewBox='0 0 48 24'", {48, 24}},
        {"viewBox='-1,-1, 48 , 24' width='100%' height='100%'", {48, 24}},
        {"viewBox='0 0 48 24' width='96'", {96, 48}},
        {"viewBox='0 0 48 24' height='12'", {24, 12}},
    };
    for (const auto& [attributes, size] : rows)
        EXPECT_EQ(pictureFrom(svg(attributes, "<path d='M0 0h9v9z'/>"))->size(), size)
            << attributes.constData();
    EXPECT_EQ(pictureFrom(svg("", "<path d='M0 0h33v22z'/>"))->size(), QSize(33, 22));
    // Without a view box, lengths in the drawing are pixels of the given size.
    const auto plain =
        pictureFrom(svg("width='25.4mm' height='96'", "<path d='M48 0h48v96H48z'/>"));
    EXPECT_EQ(plain->image({96, 96}).pixel(44, 50), 0u);
    EXPECT_EQ(hex(plain->image({96, 96}).pixel(50, 50)), "ff000000");
}

TEST(PictureFile, svgFilesReachNothingOutside) {
    const QTemporaryDir folder;
    const QString outside = folder.filePath("outside.png");
    test_support::writeFile(outside, file(halves(8, 8), "png"));
    const QString sheet = folder.filePath("sheet.css");
    test_support::writeFile(sheet, "rect{fill:#f00}");
    const QByteArray path = outside.toUtf8();
    const QByteArray nested =
        svg("width='8' height='8'", "<image width='8' height='8' xlink:href='" + path + "'/>");
    const QByteArray blank = "<rect fill='none' width='8' height='8'/>";
    for (const QByteArray& source :
         {svg("width='8' height='8'", "<image width='8' height='8' xlink:href='" + path + "'/>"),
          svg("width='8' height='8'", "<image width='8' height='8' href='" + path + "'/>"),
          svg("width='8' height='8'",
              "<image width='8' height='8' xlink:href='file://" + path + "'/>"),
          svg("width='8' height='8'",
              "<image width='8' height='8' xlink:href='data:image/png;base64," + nested.toBase64() +
                  "'/>"),
          "<!DOCTYPE svg [<!ENTITY x SYSTEM \"" + path + "\">]>" +
              svg("width='8' height='8'", "<image width='8' height='8' xlink:href='&x;'/>"),
          "<?xml-stylesheet type=\"text/css\" href=\"" + sheet.toUtf8() + "\"?>" +
              svg("width='8' height='8'", blank)}) {
        const auto picture = pictureFrom(source);
        if (!picture)
            continue;
        const QImage image = picture->image({8, 8});
        for (int at = 0; at < 8; ++at)
            EXPECT_EQ(image.pixel(at, at), 0u) << source.constData();
    }
    const QByteArray inside = file(halves(8, 8), "png").toBase64();
    const auto picture = pictureFrom(
        svg("width='8' height='8'",
            "<image width='8' height='8' xlink:href='data:image/png;base64," + inside + "'/>"));
    EXPECT_EQ(hex(picture->image({8, 8}).pixel(1, 1)), "ffff0000");
}

TEST(PictureFile, drawingsThatNeverEndAreRefused) {
    const QByteArray open = "width='9' height='9'";
    QByteArray bomb = "<g id='a0'><path d='M0 0h9'/></g>";
    for (int level = 1; level < 12; ++level)
        bomb +=
            "<g id='a" + QByteArray::number(level) + "'>" +
            QByteArray("<use xlink:href='#a" + QByteArray::number(level - 1) + "'/>").repeated(8) +
            "</g>";
    QByteArray chain = "<g id='a0'/>";
    for (int level = 1; level < 500; ++level)
        chain.prepend("<use id='a" + QByteArray::number(level) + "' xlink:href='#a" +
                      QByteArray::number(level - 1) + "'/>");
    QByteArray laughs = "<!DOCTYPE svg [<!ENTITY a0 \"<path d='M0 0h9'/>\">";
    for (int level = 1; level < 12; ++level)
        laughs += "<!ENTITY a" + QByteArray::number(level) + " \"" +
                  QByteArray("&a" + QByteArray::number(level - 1) + ";").repeated(10) + "\">";
    for (const QByteArray& source :
         {svg(open, bomb), svg(open, chain), svg(open, "<g id='a'><use xlink:href='#a'/></g>"),
          svg(open, "<use id='a' xlink:href='#b'/><use id='b' xlink:href='#a'/>"),
          svg(open, QByteArray("<g>").repeated(90) + QByteArray("</g>").repeated(90)),
          svg(open, QByteArray("<g/>").repeated(30'000)), laughs + "]>" + svg(open, "&a11;"),
          svg("width='9e9' height='9e9'", "<path d='M0 0h9'/>"), svg(open) + "x",
          QByteArray("<html><svg width='9' height='9'/></html>")})
        EXPECT_FALSE(pictureFrom(source)) << source.left(150).constData();
    EXPECT_TRUE(pictureFrom(svg(open, "<g id='a'/><use xlink:href='#a'/><use xlink:href='#a'/>")));
}

TEST(PictureFile, hugeSizesAreRefusedBeforeAnythingIsHeld) {
    QByteArray bmp = file(halves(4, 4), "bmp");
    bmp.replace(18, 8, QByteArray::fromHex("ffff0000ffff0000"));
    QByteArray gif = kGif;
    gif.replace(6, 4, QByteArray::fromHex("ffffffff"));
    QByteArray jpeg = file(halves(4, 4), "jpg");
    jpeg.replace(jpeg.indexOf("\xFF\xC0") + 5, 4, QByteArray::fromHex("ffffffff"));
    QByteArray png = file(halves(4, 4), "png");
    png.replace(16, 8, QByteArray::fromHex("0000ffff0000ffff"));
    for (const QByteArray& bytes : {bmp, gif, jpeg, png})
        EXPECT_FALSE(pictureFrom(bytes));

    const auto small = pictureFrom(file(halves(4, 4), "png"));
    EXPECT_TRUE(small->image({100'000, 100'000}).isNull());
    EXPECT_TRUE(small->image({}).isNull());
}

bool isNullOr(const std::shared_ptr<const page::Picture>& picture, QSize size) {
    return !picture || picture->size() == size;
}

TEST(PictureFile, everyKindOfPngIsReadAndNoneIsTalkedAbout) {
    QImage colours = halves(40, 30, true);
    for (int x = 0; x < 40; ++x)
        colours.setPixel(x, 3, qRgba(x * 6, 255 - x, 7 * x % 256, 255 - 5 * x));
    testing::internal::CaptureStderr();
    for (const QImage::Format format :
         {QImage::Format_Mono, QImage::Format_Indexed8, QImage::Format_Grayscale8,
          QImage::Format_Grayscale16, QImage::Format_RGB888, QImage::Format_RGB32,
          QImage::Format_ARGB32, QImage::Format_RGBA64}) {
        const QImage original = colours.convertToFormat(format);
        QByteArray bytes = file(original, "PNG");
        const auto picture = pictureFrom(bytes);
        ASSERT_TRUE(picture) << format;
        const QImage read = picture->image(original.size());
        EXPECT_EQ(read.hasAlphaChannel(), original.hasAlphaChannel()) << format;
        const QImage expected = original.convertToFormat(read.format());
        // Eight bits of sixteen may be rounded either way.
        const auto isNear = [](QRgb a, QRgb b) {
            return std::abs(qRed(a) - qRed(b)) <= 1 && std::abs(qGreen(a) - qGreen(b)) <= 1 &&
                   std::abs(qBlue(a) - qBlue(b)) <= 1 && qAlpha(a) == qAlpha(b);
        };
        for (int y = 0; y < read.height(); ++y)
            for (int x = 0; x < read.width(); ++x)
                ASSERT_TRUE(isNear(read.pixel(x, y), expected.pixel(x, y)))
                    << format << " at " << x << ", " << y;
        // A length that is wrong, a check sum, a colour too many, an end too early.
        for (const qsizetype place : {30, 34, 42, int(bytes.size()) / 2, int(bytes.size()) - 14}) {
            QByteArray damaged = bytes;
            damaged[place] = static_cast<char>(damaged[place] ^ 0x55);
            pictureFrom(damaged);
            pictureFrom(bytes.left(place));
        }
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

/// What is told before the pixels is read without a word on standard error; what Qt says later goes
/// through its handler.
TEST(PictureFile, brokenPngsInDrawingsAreLeftOut) {
    const QByteArray bytes = file(halves(40, 20), "png");
    testing::internal::CaptureStderr();
    for (qsizetype place = 8; place < bytes.indexOf("IDAT"); ++place) {
        QByteArray damaged = bytes;
        damaged[place] = static_cast<char>(damaged[place] ^ 0x55);
        const auto drawing =
            pictureFrom(svg("width='8' height='8'",
                            "<image width='4' height='4' xlink:href='data:image/png;base64," +
                                damaged.toBase64() + "'/>"));
        ASSERT_TRUE(drawing) << place;
        EXPECT_EQ(drawing->image({8, 8}).size(), QSize(8, 8)) << place;
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr().find("libpng error"), std::string::npos);
}

TEST(PictureFile, brokenFilesAreNullOrWhole) {
    std::mt19937 random(4711);
    std::vector<QByteArray> files{kGif, svg("width='8' height='8'", "<path d='M0 0h9'/>")};
    for (const char* format : {"bmp", "jpg", "png"})
        files.push_back(file(halves(12, 8, format[0] == 'p'), format));
    for (const QByteArray& whole : files) {
        const QSize size = pictureFrom(whole)->size();
        for (qsizetype length = 0; length < whole.size(); ++length)
            EXPECT_TRUE(isNullOr(pictureFrom(whole.left(length)), size)) << length;
        EXPECT_FALSE(pictureFrom(whole.left(12)));
        for (int round = 0; round < 300; ++round) {
            QByteArray damaged = whole;
            for (int change = 0; change < 3; ++change)
                damaged[qsizetype(random() % std::size_t(damaged.size()))] =
                    static_cast<char>(random());
            const auto picture = pictureFrom(damaged);
            if (picture && picture->size().width() < 99) {
                EXPECT_EQ(picture->image({5, 5}).size(), QSize(5, 5));
            }
        }
    }
    EXPECT_FALSE(pictureFrom(file(halves(12, 8), "png").chopped(30)));
    EXPECT_FALSE(pictureFrom({}));
    EXPECT_FALSE(pictureFrom(file(halves(4, 4), "ppm")));
}

} // namespace
