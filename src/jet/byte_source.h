#pragma once

#include <algorithm>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

namespace jet {

/// What a database is read from: a file, or bytes in memory.
class ByteSource {
public:
    virtual ~ByteSource() = default;

    /// Bytes there were when it was opened.
    virtual std::uint64_t size() const = 0;
    /// Fills `bytes` from `offset` on. False when there are fewer, or when they cannot be read;
    /// what `bytes` holds then is nothing to go by.
    virtual bool read(std::uint64_t offset, std::span<std::uint8_t> bytes) const = 0;
};

class MemorySource final : public ByteSource {
public:
    explicit MemorySource(std::vector<std::uint8_t> bytes) : bytes_(std::move(bytes)) {}

    std::uint64_t size() const override { return bytes_.size(); }

    bool read(std::uint64_t offset, std::span<std::uint8_t> bytes) const override {
        if (offset > bytes_.size() || bytes.size() > bytes_.size() - offset)
            return false;
        std::copy_n(bytes_.begin() + static_cast<std::ptrdiff_t>(offset), bytes.size(),
                    bytes.begin());
        return true;
    }

private:
    std::vector<std::uint8_t> bytes_;
};

} // namespace jet
