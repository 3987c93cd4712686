#pragma once

#include <string>

namespace coursetool {

/// Appends the shortest decimal text that reads back as exactly this number; NaN and infinities,
/// for which JSON has no number, as the strings "NaN", "Infinity" and "-Infinity".
void appendJsonNumber(double number, std::string& out);
void appendJsonNumber(float number, std::string& out);

} // namespace coursetool
