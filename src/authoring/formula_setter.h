#pragma once

#include "authoring/formula.h"
#include "authoring/inline_text.h"
#include "authoring/ruler.h"

namespace authoring {

/// Sets a formula in the page language and appends it to `out`. A formula wider than the column
/// may break after a relation or a reaction's arrow, nowhere else. What the directives cannot draw
/// is a fault.
void setFormula(const FormulaNode& formula, FormulaText& source, const Style& style,
                const Ruler& ruler, InlineText& out);

} // namespace authoring
