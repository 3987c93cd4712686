#pragma once

#include <string>
#include <string_view>

namespace coursetool {

/// `text` (UTF-8) as a TOML string in quotes. Control characters and the byte order mark are
/// written as escapes, so that no editor changes or hides them.
std::string tomlString(std::string_view text);

} // namespace coursetool
