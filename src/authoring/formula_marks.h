#pragma once

#include "authoring/formula.h"

namespace authoring {

/// What a bar, an arrow or a hat goes over: bare signs, letters as a rule. What is no sign is a
/// fault.
FormulaNode markedSigns(const FormulaNode& content, QStringView directive, FormulaText& source);

} // namespace authoring
