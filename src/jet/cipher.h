#pragma once

#include <array>
#include <cstdint>
#include <span>

namespace jet {

/// Key of the mask that lies over the header page from byte 0x18 on.
inline constexpr std::array<std::uint8_t, 4> kHeaderMaskKey{0xC7, 0xDA, 0x39, 0x6B};

/// XORs `bytes` with the RC4 key stream of `key`; doing it twice gives the bytes back.
void applyRc4(std::span<const std::uint8_t> key, std::span<std::uint8_t> bytes);

/// Encodes or decodes page `number` (not 0) of a file whose header holds the page key `key`.
void applyPageKey(std::uint32_t key, std::uint32_t number, std::span<std::uint8_t> page);

} // namespace jet
