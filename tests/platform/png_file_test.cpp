#include "output/png/png_file.h"

#include <QBuffer>
#include <QPainter>

#include <gtest/gtest.h>

namespace {

/// Paper with colours at the places where packing could go wrong: run ends and the last pixels.
QImage speckled(QSize size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    for (int y = 0; y < size.height(); ++y)
        for (int x = y % 5; x < size.width(); x += 1 + y)
            image.setPixel(x, y, qRgb(x % 256, y % 256, (x * y + 1) % 256));
    return image;
}

QByteArray encoded(const QImage& image, int bandRows, double dotsPerInch = 96) {
    QBuffer device;
    device.open(QIODevice::WriteOnly);
    output::PngFile png(device, image.size(), dotsPerInch);
    for (int top = 0; top < image.height(); top += bandRows)
        EXPECT_TRUE(
            png.add(image.copy(0, top, image.width(), std::min(bandRows, image.height() - top))));
    EXPECT_TRUE(png.finish());
    return device.data();
}

TEST(PngFile, readsBackAsThePicture) {
    for (const QSize size : {QSize(1, 1), QSize(15, 3), QSize(16, 7), QSize(53, 40)}) {
        const QImage image = speckled(size);
        for (const int bandRows : {1, 3, 40}) {
            const QImage back = QImage::fromData(encoded(image, bandRows), "PNG");
            EXPECT_EQ(back.convertToFormat(QImage::Format_RGB32), image) << size.width();
        }
    }
    const QImage dense = QImage::fromData(encoded(speckled({4, 4}), 4, 192));
    EXPECT_NEAR(dense.dotsPerMeterX() * 0.0254, 192, 0.1);
}

TEST(PngFile, saysWhatWentWrong) {
    const QImage image = speckled({20, 4});
    QBuffer device;
    device.open(QIODevice::WriteOnly);
    output::PngFile shortOfRows(device, {20, 5}, 96);
    EXPECT_TRUE(shortOfRows.add(image));
    EXPECT_FALSE(shortOfRows.finish());
    output::PngFile tooManyRows(device, {20, 3}, 96);
    EXPECT_FALSE(tooManyRows.add(image));
    EXPECT_FALSE(tooManyRows.finish());
    output::PngFile otherWidth(device, {21, 4}, 96);
    EXPECT_FALSE(otherWidth.add(image));

    QBuffer full;
    full.open(QIODevice::ReadOnly); // writing fails
    output::PngFile png(full, image.size(), 96);
    png.add(image);
    EXPECT_FALSE(png.finish());
}

} // namespace
