#pragma once

#include "jet/byte_writer.h"
#include "jet/format.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace jet {

/// A data page that is being filled, from its end towards the slots.
class DataPageBuilder {
public:
    DataPageBuilder(std::uint32_t number, std::uint32_t owner, const Format& format = kJet4);

    /// Whether a row of that size fits. `reserve` bytes more are to stay free on the page for the
    /// row to grow, except when it is alone there.
    bool hasRoom(std::size_t size, std::size_t reserve = 0) const;
    /// Adds a row, with the flags of its slot, and returns its place; nothing when the page has no
    /// room for it.
    std::optional<RowPointer> add(Bytes row, std::size_t reserve = 0, std::uint16_t flags = 0);

    std::uint32_t number() const { return number_; }
    const PageImage& image() const { return image_; }

private:
    const Format* format_;
    std::uint32_t number_;
    PageImage image_;
    std::size_t slots_ = 0;
    std::size_t lowest_; ///< offset of the last row
    std::size_t reserved_ = 0;
};

} // namespace jet
