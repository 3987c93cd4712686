#pragma once

#include "jet/byte_writer.h"
#include "jet/format.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace jet {

/// A data page of Jet 4 that is being filled, from its end towards the slots.
class DataPageBuilder {
public:
    DataPageBuilder(std::uint32_t number, std::uint32_t owner);

    /// Whether a row of that size fits. `reserve` bytes more are to stay free on the page for the
    /// row to grow, except when it is alone there.
    bool hasRoom(std::size_t size, std::size_t reserve = 0) const;
    /// Adds a row and returns its place; nothing when the page has no room for it.
    std::optional<RowPointer> add(Bytes row, std::size_t reserve = 0);

    std::uint32_t number() const { return number_; }
    const PageImage& image() const { return image_; }

private:
    std::uint32_t number_;
    PageImage image_;
    std::size_t slots_ = 0;
    std::size_t lowest_ = kJet4.pageSize; ///< offset of the last row
    std::size_t reserved_ = 0;
};

} // namespace jet
