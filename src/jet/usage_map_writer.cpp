#include "jet/usage_map_writer.h"

#include "jet/format.h"

#include <algorithm>

namespace jet {

namespace {

constexpr std::size_t kInlineBytes = kMapRowBytes - kMapBitsAt;
constexpr std::size_t kBitmapBytes = kJet4.pageSize - kBitmapAt;

void writeBitmapPage(std::uint32_t number, Bytes bits, std::uint8_t rest, OutputFile& file) {
    PageImage image(kJet4.pageSize, rest);
    image[0] = static_cast<std::uint8_t>(PageType::UsageBitmap);
    image[1] = 1;
    image[2] = image[3] = 0;
    putBytes(image, kBitmapAt, bits);
    file.write(number, image);
}

bool isEmpty(Bytes bits) {
    return std::all_of(bits.data(), bits.data() + bits.size(),
                       [](std::uint8_t byte) { return byte == 0; });
}

/// Bits of the pages up to `used` clear, those after them, to the end of their byte, set.
std::vector<std::uint8_t> freeAfter(std::uint32_t used) {
    std::vector<std::uint8_t> bits((used + 7) / 8);
    if (used % 8 != 0)
        bits.back() = static_cast<std::uint8_t>(0xFF << (used % 8));
    return bits;
}

} // namespace

void PageSet::insert(std::uint32_t page) {
    if (bits_.size() <= page / 8)
        bits_.resize(page / 8 + 1);
    bits_[page / 8] = static_cast<std::uint8_t>(bits_[page / 8] | 1 << (page % 8));
}

std::vector<std::uint8_t> usageMapRow(const PageSet& pages, OutputFile& file) {
    std::vector<std::uint8_t> row(kMapRowBytes);
    const Bytes bits(pages.bits());
    if (bits.size() <= kInlineBytes) {
        putBytes(row, kMapBitsAt, bits);
        return row;
    }
    row[0] = kMapByReference;
    for (std::size_t at = 0, i = 0; at < bits.size(); at += kBitmapBytes, ++i) {
        const Bytes window = bits.from(at).first(kBitmapBytes);
        if (isEmpty(window) || kMapReferencesAt + 4 * i + 4 > row.size())
            continue;
        const std::uint32_t page = file.allocate();
        put32(row, kMapReferencesAt + 4 * i, page);
        writeBitmapPage(page, window, 0, file);
    }
    return row;
}

std::vector<std::uint8_t> globalMapRow(OutputFile& file) {
    std::vector<std::uint8_t> row(kMapRowBytes, 0xFF);
    if (file.pageCount() <= 8 * kInlineBytes) {
        std::fill_n(row.begin(), kMapBitsAt, std::uint8_t{0});
        putBytes(row, kMapBitsAt, freeAfter(file.pageCount()));
        return row;
    }
    std::fill(row.begin(), row.end(), std::uint8_t{0});
    row[0] = kMapByReference;
    // The bitmap pages are in use too; taking one can make one more necessary.
    std::vector<std::uint32_t> bitmaps;
    while (bitmaps.size() * kBitmapBytes * 8 < file.pageCount())
        bitmaps.push_back(file.allocate());
    const std::vector<std::uint8_t> bits = freeAfter(file.pageCount());
    for (std::size_t i = 0; i < bitmaps.size() && kMapReferencesAt + 4 * i + 4 <= row.size(); ++i) {
        put32(row, kMapReferencesAt + 4 * i, bitmaps[i]);
        writeBitmapPage(bitmaps[i], Bytes(bits).from(i * kBitmapBytes).first(kBitmapBytes), 0xFF,
                        file);
    }
    return row;
}

} // namespace jet
