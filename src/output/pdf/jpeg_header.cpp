#include "output/pdf/jpeg_header.h"

#include <QtEndian>

namespace output {

namespace {

// Markers of ITU-T T.81, table B.1.
constexpr uchar kMarker = 0xFF;
constexpr uchar kStart = 0xD8;
constexpr uchar kEnd = 0xD9;
constexpr uchar kScan = 0xDA;
constexpr uchar kFirstFrame = 0xC0; ///< baseline; two more: extended and progressive, by Huffman
constexpr uchar kLastFrame = 0xC2;
constexpr qsizetype kFrameBytes = 8; ///< length, precision, height, width, number of components

std::optional<QSize> frameSize(const uchar* frame) {
    const int height = qFromBigEndian<quint16>(frame + 3);
    const int width = qFromBigEndian<quint16>(frame + 5);
    const int components = frame[7];
    // Four components may be stored inverted, which no header tells for sure.
    if (frame[2] != 8 || height == 0 || width == 0 || (components != 1 && components != 3))
        return std::nullopt;
    return QSize(width, height);
}

} // namespace

std::optional<QSize> jpegSize(const QByteArray& file) {
    const auto* bytes = reinterpret_cast<const uchar*>(file.constData());
    const qsizetype size = file.size();
    if (size < 2 || bytes[0] != kMarker || bytes[1] != kStart)
        return std::nullopt;
    for (qsizetype at = 2; at + 2 + kFrameBytes <= size;) {
        if (bytes[at] != kMarker)
            return std::nullopt;
        const uchar kind = bytes[at + 1];
        if (kind == kMarker) { // filler
            ++at;
            continue;
        }
        if (kind == kScan || kind == kEnd)
            return std::nullopt;
        if (kind >= kFirstFrame && kind <= kLastFrame)
            return frameSize(bytes + at + 2);
        at += 2 + qFromBigEndian<quint16>(bytes + at + 2);
    }
    return std::nullopt;
}

} // namespace output
