#pragma once

#include "page/formula_shapes.h"
#include "page/readable_page.h"

namespace page {

/// The blocks that pieces of text make up, those in boxes as tables or as blocks that stay
/// together; from top to bottom. `width` is that of the surface, in twips. Pieces without anything
/// to be seen are left out. The pieces must outlive the blocks.
std::vector<ReadableBlock> readableBlocks(const TextPieces& pieces,
                                          std::vector<FormulaShapes::Row> rows, double width);

} // namespace page
