#pragma once

#include "authoring/document.h"
#include "authoring/positions.h"

#include <string_view>

namespace authoring {

/// Largest Markdown source, in bytes, and how deep its lists, quotes and emphases may stand in each
/// other: far beyond any page, and what keeps a hostile one from taking all time or stack.
inline constexpr std::size_t kMaxMarkdownBytes = 1u << 20;
inline constexpr std::size_t kMaxDepth = 24;

/// Reads CommonMark with tables, task lists and formulas between dollar signs. Indented code is
/// none: a paragraph may be indented. A source beyond the bounds is a fault, and an empty document;
/// HTML and unknown entities are faults where they stand, comments are left out.
Block readMarkdown(std::string_view source, Faults& faults);

} // namespace authoring
