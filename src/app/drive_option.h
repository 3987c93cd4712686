#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace app {

/// Adds what an option "L=DIR" says, the letter L in either case, to `drives`: directories by the
/// letters, in upper case, that they stand for. A letter told again takes the new directory. All
/// text is UTF-8. Gives nothing when that is done, and what is wrong with the option, in French,
/// when it has another form.
std::optional<std::string> addDrive(std::string_view option, std::map<char, std::string>& drives);

} // namespace app
