#pragma once

#include "jet/byte_writer.h"
#include "jet/output_file.h"

#include <cstdint>
#include <vector>

namespace jet {

/// A set of pages, one bit each.
class PageSet {
public:
    void insert(std::uint32_t page);
    const std::vector<std::uint8_t>& bits() const { return bits_; }

private:
    std::vector<std::uint8_t> bits_; ///< no longer than its highest page asks for
};

/// Row of a usage map, as long as the engine makes it, whichever kind it is.
inline constexpr std::size_t kMapRowBytes = 69;

/// The row of the map that marks `pages`. When they do not fit the row, bitmap pages are written to
/// the file and the row names them.
std::vector<std::uint8_t> usageMapRow(const PageSet& pages, OutputFile& file);

/// The map of all free pages: those from the present end of the file on. To be written last.
std::vector<std::uint8_t> globalMapRow(OutputFile& file);

} // namespace jet
