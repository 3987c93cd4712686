#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <vector>

namespace jet {

/// A run of bytes that came from a file. Numbers are little-endian. Nothing outside the run can be
/// reached: a read that does not fit gives 0, a part that does not fit is empty; has() tells
/// before.
class Bytes {
public:
    constexpr Bytes() = default;
    constexpr Bytes(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}
    constexpr Bytes(std::span<const std::uint8_t> bytes) : Bytes(bytes.data(), bytes.size()) {}
    Bytes(const std::vector<std::uint8_t>& bytes) : Bytes(bytes.data(), bytes.size()) {}

    const std::uint8_t* data() const { return data_; }
    std::size_t size() const { return size_; }
    bool empty() const { return size_ == 0; }

    /// Written so that no sum of two lengths read from a file can wrap.
    bool has(std::size_t offset, std::size_t length) const {
        return offset <= size_ && length <= size_ - offset;
    }

    Bytes part(std::size_t offset, std::size_t length) const {
        return has(offset, length) ? Bytes(data_ + offset, length) : Bytes();
    }
    Bytes from(std::size_t offset) const {
        return offset <= size_ ? Bytes(data_ + offset, size_ - offset) : Bytes();
    }
    Bytes first(std::size_t length) const { return length < size_ ? Bytes(data_, length) : *this; }

    std::uint8_t u8(std::size_t offset) const { return has(offset, 1) ? data_[offset] : 0; }
    std::uint16_t u16(std::size_t offset) const { return number<std::uint16_t>(offset); }
    std::uint32_t u32(std::size_t offset) const { return number<std::uint32_t>(offset); }
    std::uint64_t u64(std::size_t offset) const { return number<std::uint64_t>(offset); }
    float f32(std::size_t offset) const { return std::bit_cast<float>(u32(offset)); }
    double f64(std::size_t offset) const { return std::bit_cast<double>(u64(offset)); }

private:
    template <class Number>
    Number number(std::size_t offset) const {
        if (!has(offset, sizeof(Number)))
            return 0;
        Number value = 0;
        if constexpr (std::endian::native == std::endian::little) {
            std::memcpy(&value, data_ + offset, sizeof(Number));
        } else {
            for (std::size_t i = 0; i < sizeof(Number); ++i)
                value =
                    static_cast<Number>(value | static_cast<Number>(data_[offset + i]) << (8 * i));
        }
        return value;
    }

    const std::uint8_t* data_ = nullptr;
    std::size_t size_ = 0;
};

} // namespace jet
