#include "output/raster/raster_bands.h"

#include <algorithm>
#include <utility>

namespace output {

namespace {

constexpr qsizetype kMaxBytes = 64'000'000;
constexpr qsizetype kBytesPerPixel = 4;

/// Pictures that are kept for the next page: as many as a page takes that is scrolled by less than
/// a screen. Fresh memory costs more time than all the letters of a page.
constexpr std::size_t kSpares = 2;

} // namespace

void RasterBands::resize(int width, int rows) {
    width_ = width;
    rows_ = rows;
    bands_.clear();
    spare_.clear();
}

void RasterBands::wipe() {
    for (Band& band : bands_)
        keepForLater(band.picture);
    bands_.clear();
}

void RasterBands::join(int top, int bottom) {
    const std::size_t last = indexOf(std::max(top, bottom - 1));
    const std::size_t first = indexOf(top);
    const Band joined{bands_[first].top, bands_[last].bottom, {}, 0, 0};
    if (first == last || bytesOf(joined.bottom - joined.top) > kMaxBytes)
        return;
    for (std::size_t i = first; i <= last; ++i)
        keepForLater(bands_[i].picture);
    bands_[first] = joined;
    bands_.erase(bands_.begin() + static_cast<std::ptrdiff_t>(first) + 1,
                 bands_.begin() + static_cast<std::ptrdiff_t>(last) + 1);
}

RasterBands::Band& RasterBands::at(int row) {
    const std::size_t index = indexOf(row);
    Band& band = bands_[index];
    if (!band.picture.isNull())
        return band;
    const int rows = band.bottom - band.top;
    if (rows == rows_ && !spare_.empty()) {
        band.picture = std::move(spare_.back());
        spare_.pop_back();
    } else {
        makeRoom(rows, index);
        band.picture = QImage(width_, rows, QImage::Format_RGB32);
    }
    band.ground = 0;
    band.drawn = 0;
    return band;
}

qsizetype RasterBands::bytes() const {
    qsizetype sum = 0;
    for (const Band& band : bands_)
        sum += band.picture.sizeInBytes();
    for (const QImage& picture : spare_)
        sum += picture.sizeInBytes();
    return sum;
}

std::size_t RasterBands::indexOf(int row) {
    while (bands_.empty() || bands_.back().bottom <= row) {
        const int top = bands_.empty() ? 0 : bands_.back().bottom;
        bands_.push_back({top, top + rows_, {}, 0, 0});
    }
    const auto after = std::upper_bound(bands_.begin(), bands_.end(), row,
                                        [](int r, const Band& band) { return r < band.top; });
    return static_cast<std::size_t>(after - bands_.begin()) - 1;
}

qsizetype RasterBands::bytesOf(int rows) const {
    return qsizetype{width_} * rows * kBytesPerPixel;
}

void RasterBands::makeRoom(int rows, std::size_t shown) {
    const auto isFull = [&] { return bytes() + bytesOf(rows) > kMaxBytes; };
    while (isFull() && !spare_.empty())
        spare_.pop_back();
    // From both ends towards what is shown, the farther one first.
    std::size_t first = 0;
    std::size_t last = bands_.size() - 1;
    while (isFull() && first < last)
        bands_[shown - first > last - shown ? first++ : last--].picture = QImage();
}

void RasterBands::keepForLater(QImage& picture) {
    if (picture.height() == rows_ && spare_.size() < kSpares)
        spare_.push_back(std::move(picture));
    picture = QImage();
}

} // namespace output
