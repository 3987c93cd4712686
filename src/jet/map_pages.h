#pragma once

#include "jet/format.h"
#include "jet/output_file.h"
#include "jet/usage_map_writer.h"

#include <cstdint>
#include <vector>

namespace jet {

/// The pages that hold usage maps. A map has its place from the beginning, as definitions name it;
/// what it marks is only looked at when the pages are written.
class MapPages {
public:
    explicit MapPages(OutputFile& file) : file_(&file) {}
    /// With its first page given.
    MapPages(OutputFile& file, std::uint32_t page) : file_(&file), pages_{page} {}

    /// Place of the map of `pages`, which must stay where it is until write().
    RowPointer add(const PageSet& pages);
    void write();

private:
    OutputFile* file_;
    std::vector<std::uint32_t> pages_;
    std::vector<const PageSet*> maps_;
};

} // namespace jet
