#pragma once

#include "jet/byte_sink.h"
#include "jet/byte_source.h"
#include "jet/database.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <vector>

namespace test_support {

/// Keeps what is written in `bytes`, which must outlive it.
class MemorySink : public jet::ByteSink {
public:
    explicit MemorySink(std::vector<std::uint8_t>& bytes) : bytes_(bytes) {}

    void writeAt(std::uint64_t offset, std::span<const std::uint8_t> bytes) override {
        bytes_.resize(std::max<std::size_t>(bytes_.size(), offset + bytes.size()));
        std::copy(bytes.begin(), bytes.end(), bytes_.begin() + static_cast<std::ptrdiff_t>(offset));
    }
    jet::Result<void> state() const override { return {}; }
    jet::Result<void> putInPlace() override { return {}; }

private:
    std::vector<std::uint8_t>& bytes_;
};

inline jet::Result<jet::Database> openInMemory(std::vector<std::uint8_t> bytes) {
    return jet::Database::open(std::make_unique<jet::MemorySource>(std::move(bytes)), "memory.mdb");
}

} // namespace test_support
