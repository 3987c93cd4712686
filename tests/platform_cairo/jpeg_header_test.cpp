#include "output/pdf/jpeg_header.h"

#include <QBuffer>
#include <QImage>

#include <gtest/gtest.h>

namespace {

QByteArray jpegFile(QImage::Format format) {
    QImage image(70, 30, format);
    image.fill(Qt::darkGray);
    QByteArray file;
    QBuffer buffer(&file);
    image.save(&buffer, "JPEG");
    return file;
}

TEST(JpegHeader, tellsTheSize) {
    EXPECT_EQ(output::jpegSize(jpegFile(QImage::Format_RGB32)), QSize(70, 30));
    EXPECT_EQ(output::jpegSize(jpegFile(QImage::Format_Grayscale8)), QSize(70, 30));
}

TEST(JpegHeader, refusesWhatAReaderOfPdfCouldNotShow) {
    const QByteArray good = jpegFile(QImage::Format_RGB32);
    const qsizetype frame = good.indexOf("\xFF\xC0");
    ASSERT_GT(frame, 0);
    const struct {
        int offset;
        char value;
    } rows[] = {{1, '\xCB'}, {4, 12}, {9, 4}, {9, 0}};
    for (const auto& row : rows) {
        QByteArray bad = good;
        bad[frame + row.offset] = row.value;
        EXPECT_EQ(output::jpegSize(bad), std::nullopt) << row.offset;
    }
    // A file cut anywhere before its size, and bytes that are no JPEG file.
    for (qsizetype size = 0; size < frame + 9; ++size)
        EXPECT_EQ(output::jpegSize(good.left(size)), std::nullopt) << size;
    EXPECT_EQ(output::jpegSize(QByteArray("\xFF\xD8").append(QByteArray(50, '\0'))), std::nullopt);
    EXPECT_EQ(output::jpegSize(QByteArray("\xFF\xD8").append(QByteArray(50, '\xFF'))),
              std::nullopt);
}

} // namespace
