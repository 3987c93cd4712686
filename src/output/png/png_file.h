#pragma once

#include <QIODevice>
#include <QImage>
#include <QSize>

#include <memory>

namespace output {

/// Writes one picture as a PNG file of 8-bit red, green and blue, band by band. Pages are mostly
/// paper and small text: rows go unfiltered into zlib's fastest level, which takes a fifth of the
/// time of the usual settings for about the same size.
class PngFile {
public:
    /// `device` is open for writing and outlives the file. `dotsPerInch` is how dense the picture
    /// says it is.
    PngFile(QIODevice& device, QSize pixels, double dotsPerInch);
    ~PngFile();
    PngFile(const PngFile&) = delete;
    PngFile& operator=(const PngFile&) = delete;

    /// Adds the next rows: Format_RGB32, as wide as the picture. False once something has failed.
    bool add(const QImage& band);

    /// Ends the file; to be called when all rows are there. False when something could not be
    /// written, or rows are missing.
    bool finish();

private:
    struct Writer;
    std::unique_ptr<Writer> writer_;
};

} // namespace output
