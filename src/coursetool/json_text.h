#pragma once

#include <string>
#include <string_view>

namespace coursetool {

/// Appends `utf8` as a JSON string, in quotes. Characters beyond ASCII stand as they are.
void appendJsonString(std::string_view utf8, std::string& out);

/// Appends the shortest decimal text that reads back as exactly this number; NaN and infinities,
/// for which JSON has no number, as the strings "NaN", "Infinity" and "-Infinity".
void appendJsonNumber(double number, std::string& out);
void appendJsonNumber(float number, std::string& out);

} // namespace coursetool
