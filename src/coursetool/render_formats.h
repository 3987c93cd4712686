#pragma once

#include <cstddef>
#include <string_view>

namespace coursetool {

/// The kinds of files that `render` writes. A new one is an enumerator, its row below, and what
/// openSheetFiles() makes of it.
enum class RenderFormat { Png, Pdf, Svg };

/// What the command line, its help and what writes the files know of a format.
struct RenderFormatRow {
    RenderFormat format;
    std::string_view name; ///< in lower case: for `--format`, and what names of its files end in
    bool isScaled;         ///< `--scale` has a meaning: the others are enlarged when they are read
    bool holdsAll;         ///< all sheets go into one file, and not each into one of its own
};

/// In the order in which the help names them, which is that of the enumerators.
inline constexpr RenderFormatRow kRenderFormats[] = {
    {RenderFormat::Png, "png", true, false},
    {RenderFormat::Pdf, "pdf", false, true},
    {RenderFormat::Svg, "svg", true, false},
};

constexpr const RenderFormatRow& rowOf(RenderFormat format) {
    return kRenderFormats[static_cast<std::size_t>(format)];
}

static_assert([] {
    for (const RenderFormatRow& row : kRenderFormats)
        if (&rowOf(row.format) != &row)
            return false;
    return true;
}());

} // namespace coursetool
