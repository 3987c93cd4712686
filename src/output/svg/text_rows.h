#pragma once

#include "page/recording.h"
#include "page/text_metrics.h"

#include <QSizeF>

#include <cstddef>
#include <map>
#include <vector>

namespace output::svg {

/// Runs of text that stand on one line, by their places among the operations, from the left.
using TextRow = std::vector<std::size_t>;

/// The rows of a surface, by the place of their last operation, where they can be drawn as a whole:
/// what was drawn between their runs lies over none of them. Every text of the surface that may
/// show something is in one row. Whoever looks for words or copies them meets a line as a person
/// reads it, although the runs of a line, and the links in it, are drawn one by one.
std::map<std::size_t, TextRow> textRows(const std::vector<page::DrawnOperation>& operations,
                                        page::SurfaceId surface, const QSizeF& size,
                                        const page::TextMetrics& metrics);

} // namespace output::svg
