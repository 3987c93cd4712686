#pragma once

#include <cstdio>

namespace coursetool {

/// Whether somebody looks at what is written there.
bool isTerminal(std::FILE* stream);

} // namespace coursetool
