#pragma once

#include <string>
#include <string_view>

namespace coursetool {

/// `source` with one field of its front matter set to `value`, which is written in TOML; all else,
/// comments and line ends included, stays as it is. A field that is not there is added behind the
/// others. A file without fences (chapter.toml) is all front matter.
std::string withField(std::string_view source, std::string_view name, std::string_view value);

} // namespace coursetool
