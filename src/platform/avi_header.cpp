#include "platform/avi_header.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace platform {

namespace {

using Bytes = std::span<const std::byte>;

/// 0 beyond the end.
std::uint32_t number(Bytes bytes, std::size_t offset) {
    std::uint32_t value = 0;
    if (offset + 4 <= bytes.size())
        for (std::size_t i = 4; i-- > 0;)
            value = value << 8 | std::to_integer<std::uint32_t>(bytes[offset + i]);
    return value;
}

bool namedAt(Bytes bytes, std::size_t offset, std::string_view name) {
    return offset + name.size() <= bytes.size() &&
           std::equal(name.begin(), name.end(), bytes.begin() + static_cast<std::ptrdiff_t>(offset),
                      [](char c, std::byte b) { return static_cast<std::byte>(c) == b; });
}

Bytes from(Bytes bytes, std::size_t offset) {
    return bytes.subspan(std::min(offset, bytes.size()));
}

constexpr std::size_t kChunkHead = 8;
constexpr std::size_t kListHead = 4;

/// Contents of the first chunk named `name` of those in `bytes`, from `offset` on; `offset` then
/// stands behind it. Nothing when there is none; what the bytes cut off is missing at its end.
std::optional<Bytes> nextChunk(Bytes bytes, std::string_view name, std::size_t& offset) {
    while (offset + kChunkHead <= bytes.size()) {
        const std::size_t size = number(bytes, offset + 4);
        const Bytes rest = from(bytes, offset + kChunkHead);
        const bool found = namedAt(bytes, offset, name);
        offset += kChunkHead + std::min(size + size % 2, rest.size());
        if (found)
            return rest.first(std::min(size, rest.size()));
    }
    return std::nullopt;
}

/// Contents of the next list of this kind.
std::optional<Bytes> nextList(Bytes bytes, std::string_view kind, std::size_t& offset) {
    while (const auto chunk = nextChunk(bytes, "LIST", offset))
        if (namedAt(*chunk, 0, kind))
            return from(*chunk, kListHead);
    return std::nullopt;
}

double plausibleRate(double framesPerSecond) {
    return framesPerSecond >= kSlowest && framesPerSecond <= kFastest ? framesPerSecond : 0;
}

int plausibleCount(std::uint32_t frames) {
    return frames <= static_cast<std::uint32_t>(kMostFrames) ? static_cast<int>(frames) : 0;
}

AviHeader mainHeader(Bytes avih) {
    const double microseconds = number(avih, 0);
    return {microseconds > 0 ? plausibleRate(1e6 / microseconds) : 0,
            plausibleCount(number(avih, 16))};
}

AviHeader streamHeader(Bytes strh) {
    const double scale = number(strh, 20);
    return {scale > 0 ? plausibleRate(number(strh, 24) / scale) : 0,
            plausibleCount(number(strh, 32))};
}

AviHeader videoStream(Bytes headers) {
    std::size_t list = 0;
    while (const auto stream = nextList(headers, "strl", list)) {
        std::size_t chunk = 0;
        const auto strh = nextChunk(*stream, "strh", chunk);
        if (strh && namedAt(*strh, 0, "vids"))
            return streamHeader(*strh);
    }
    return {};
}

} // namespace

std::optional<AviHeader> readAviHeader(std::span<const std::byte> start) {
    if (!namedAt(start, 0, "RIFF") || !namedAt(start, kChunkHead, "AVI "))
        return std::nullopt;
    std::size_t list = 0;
    const Bytes headers =
        nextList(from(start, kChunkHead + kListHead), "hdrl", list).value_or(Bytes());
    std::size_t chunk = 0;
    const auto avih = nextChunk(headers, "avih", chunk);
    AviHeader header = videoStream(headers);
    const AviHeader fallback = avih ? mainHeader(*avih) : AviHeader();
    if (header.framesPerSecond == 0)
        header.framesPerSecond = fallback.framesPerSecond;
    if (header.frames == 0)
        header.frames = fallback.frames;
    return header;
}

} // namespace platform
