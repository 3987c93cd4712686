#pragma once

#include "jet/bytes.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace jet {

using PageImage = std::vector<std::uint8_t>;

/// Stores `size` bytes of a number, lowest first, at `offset`.
inline void putNumber(std::span<std::uint8_t> target, std::size_t offset, std::uint64_t number,
                      std::size_t size) {
    for (std::size_t i = 0; i < size; ++i)
        target[offset + i] = static_cast<std::uint8_t>(number >> (8 * i));
}
inline void put16(std::span<std::uint8_t> target, std::size_t offset, std::size_t number) {
    putNumber(target, offset, number, 2);
}
inline void put32(std::span<std::uint8_t> target, std::size_t offset, std::uint64_t number) {
    putNumber(target, offset, number, 4);
}
inline void putBytes(std::span<std::uint8_t> target, std::size_t offset, Bytes bytes) {
    std::copy_n(bytes.data(), bytes.size(), target.begin() + static_cast<std::ptrdiff_t>(offset));
}

/// A growing run of bytes, numbers lowest byte first.
class ByteWriter {
public:
    void u8(std::size_t number) { append(number, 1); }
    void u16(std::size_t number) { append(number, 2); }
    void u32(std::size_t number) { append(number, 4); }
    void zeros(std::size_t count) { bytes_.resize(bytes_.size() + count); }
    void bytes(Bytes bytes) {
        bytes_.insert(bytes_.end(), bytes.data(), bytes.data() + bytes.size());
    }
    void utf16(std::u16string_view text) {
        for (const char16_t unit : text)
            u16(unit);
    }

    std::size_t size() const { return bytes_.size(); }
    void clear() { bytes_.clear(); }
    const std::vector<std::uint8_t>& written() const { return bytes_; }

private:
    void append(std::uint64_t number, std::size_t size) {
        bytes_.resize(bytes_.size() + size);
        putNumber(bytes_, bytes_.size() - size, number, size);
    }

    std::vector<std::uint8_t> bytes_;
};

} // namespace jet
