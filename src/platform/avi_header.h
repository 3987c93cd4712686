#pragma once

#include <cstddef>
#include <optional>
#include <span>

namespace platform {

/// What the headers of an AVI file say about its pictures; 0 for what they do not say.
struct AviHeader {
    double framesPerSecond = 0; ///< 0 or kSlowest to kFastest
    int frames = 0;             ///< 0 to kMostFrames
};

/// How much of the start of a file holds the headers: they take some hundred bytes for each stream.
constexpr std::size_t kAviHeaderBytes = 64 * 1024;

/// Outside these rates a header is wrong: slide shows are above, no camera of a course is beyond.
constexpr double kSlowest = 0.01;
constexpr double kFastest = 1000;
/// More than a day at 60 frames a second.
constexpr int kMostFrames = 10'000'000;

/// Reads the headers in the first bytes of a file; they may be cut off at any place. Nothing when
/// it is no AVI file. What the header of the first video stream says goes before the main header.
///
/// The format is Microsoft's "AVI RIFF File Reference": chunks of a four-letter name, a size in
/// four bytes, low byte first, and as many bytes, with one more after an odd number.
std::optional<AviHeader> readAviHeader(std::span<const std::byte> start);

} // namespace platform
