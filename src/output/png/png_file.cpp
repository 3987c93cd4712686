#include "output/png/png_file.h"

#include <QtEndian>

#include <png.h>

#include <cmath>
#include <cstring>
#include <vector>

namespace output {

namespace {

constexpr int kFastest = 1;
constexpr int kChannels = 3;

/// Pixels that are packed together. Most runs of a page are nothing but paper.
constexpr int kRun = 16;

/// Compressed data is written in pieces of this size, in bytes.
constexpr std::size_t kPieceBytes = 64 * 1024;

constexpr double kInchesPerMetre = 1 / 0.0254;

void writeTo(png_structp png, png_bytep data, png_size_t length) {
    auto* device = static_cast<QIODevice*>(png_get_io_ptr(png));
    const auto wanted = static_cast<qint64>(length);
    if (device->write(reinterpret_cast<const char*>(data), wanted) != wanted)
        png_error(png, "write");
}

void flushNothing(png_structp) {}

void ignoreWarning(png_structp, png_const_charp) {}

/// The library would print its errors.
[[noreturn]] void jumpOut(png_structp png, png_const_charp) {
    png_longjmp(png, 1);
}

bool isPaper(const QRgb* pixels) {
    QRgb common = 0xffffffff;
    for (int i = 0; i < kRun; ++i)
        common &= pixels[i];
    return common == 0xffffffff;
}

/// Four pixels of three bytes are three words of four.
void packRun(const QRgb* pixels, png_byte* out) {
    if (isPaper(pixels)) {
        std::memset(out, 0xff, kRun * kChannels);
        return;
    }
    for (int i = 0; i < kRun; i += 4, out += 4 * kChannels) {
        const QRgb* four = pixels + i;
        const quint32 words[] = {
            qToBigEndian(four[0] << 8 | (four[1] >> 16 & 0xff)),
            qToBigEndian(four[1] << 16 | (four[2] >> 8 & 0xffff)),
            qToBigEndian(four[2] << 24 | (four[3] & 0xffffff)),
        };
        std::memcpy(out, words, sizeof words);
    }
}

} // namespace

/// The library leaves a function that fails by a jump. So nothing that has a destructor lives in a
/// function that sets one up.
struct PngFile::Writer {
    png_structp png = nullptr;
    png_infop info = nullptr;
    int width = 0;
    int rowsLeft = 0;
    std::vector<png_byte> row;

    ~Writer() { png_destroy_write_struct(&png, &info); }

    bool start(QIODevice& device, QSize pixels, double dotsPerInch) {
        png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, jumpOut, ignoreWarning);
        info = png ? png_create_info_struct(png) : nullptr;
        if (!info)
            return false;
        width = pixels.width();
        row.resize(static_cast<std::size_t>(width) * kChannels);
        rowsLeft = pixels.height();
        if (setjmp(png_jmpbuf(png)))
            return false;
        png_set_write_fn(png, &device, writeTo, flushNothing);
        png_set_user_limits(png, PNG_UINT_31_MAX, PNG_UINT_31_MAX);
        png_set_IHDR(png, info, static_cast<png_uint_32>(width), static_cast<png_uint_32>(rowsLeft),
                     8, PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT,
                     PNG_FILTER_TYPE_DEFAULT);
        const auto perMetre = static_cast<png_uint_32>(std::lround(dotsPerInch * kInchesPerMetre));
        png_set_pHYs(png, info, perMetre, perMetre, PNG_RESOLUTION_METER);
        png_set_compression_level(png, kFastest);
        png_set_compression_buffer_size(png, kPieceBytes);
        png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_FILTER_NONE);
        png_write_info(png, info);
        return true;
    }

    bool add(const QImage& band) {
        if (setjmp(png_jmpbuf(png)))
            return fail();
        for (int y = 0; y < band.height(); ++y)
            png_write_row(png, packed(reinterpret_cast<const QRgb*>(band.constScanLine(y))));
        rowsLeft -= band.height();
        return true;
    }

    bool end() {
        if (setjmp(png_jmpbuf(png)))
            return fail();
        png_write_end(png, info);
        return true;
    }

    bool fail() {
        rowsLeft = -1;
        return false;
    }

    /// The row as red, green, blue.
    const png_byte* packed(const QRgb* pixels) {
        png_byte* out = row.data();
        int x = 0;
        for (; x + kRun <= width; x += kRun, out += kRun * kChannels)
            packRun(pixels + x, out);
        for (; x < width; ++x) {
            *out++ = static_cast<png_byte>(qRed(pixels[x]));
            *out++ = static_cast<png_byte>(qGreen(pixels[x]));
            *out++ = static_cast<png_byte>(qBlue(pixels[x]));
        }
        return row.data();
    }
};

PngFile::PngFile(QIODevice& device, QSize pixels, double dotsPerInch)
    : writer_(std::make_unique<Writer>()) {
    if (!writer_->start(device, pixels, dotsPerInch))
        writer_->fail();
}

PngFile::~PngFile() = default;

bool PngFile::add(const QImage& band) {
    if (band.format() != QImage::Format_RGB32 || band.width() != writer_->width ||
        band.height() > writer_->rowsLeft)
        return writer_->fail();
    return writer_->add(band);
}

bool PngFile::finish() {
    return writer_->rowsLeft == 0 && writer_->end();
}

} // namespace output
