#pragma once

#include "authoring/formula.h"

#include <optional>

namespace authoring {

/// The sign of a command without arguments, "\times" or "\alpha"; `name` has no backslash.
std::optional<FormulaNode> signOfCommand(const QString& name);

/// The sign that a character stands for: an operator gets its role and its typographic form.
/// Letters lean when `upright` is false, as quantities do.
FormulaNode signOfCharacter(char32_t character, bool upright);

} // namespace authoring
