#include "jet/cipher.h"

#include <cstddef>
#include <numeric>
#include <utility>

namespace jet {

void applyRc4(std::span<const std::uint8_t> key, std::span<std::uint8_t> bytes) {
    std::array<std::uint8_t, 256> state;
    std::iota(state.begin(), state.end(), std::uint8_t{0});
    std::uint8_t j = 0;
    for (std::size_t i = 0; i < state.size(); ++i) {
        j = static_cast<std::uint8_t>(j + state[i] + key[i % key.size()]);
        std::swap(state[i], state[j]);
    }
    std::uint8_t i = 0;
    j = 0;
    for (std::uint8_t& byte : bytes) {
        i = static_cast<std::uint8_t>(i + 1);
        j = static_cast<std::uint8_t>(j + state[i]);
        std::swap(state[i], state[j]);
        byte ^= state[static_cast<std::uint8_t>(state[i] + state[j])];
    }
}

void applyPageKey(std::uint32_t key, std::uint32_t number, std::span<std::uint8_t> page) {
    const std::uint32_t mixed = key ^ number;
    const std::array<std::uint8_t, 4> pageKey{
        static_cast<std::uint8_t>(mixed), static_cast<std::uint8_t>(mixed >> 8),
        static_cast<std::uint8_t>(mixed >> 16), static_cast<std::uint8_t>(mixed >> 24)};
    applyRc4(pageKey, page);
}

} // namespace jet
