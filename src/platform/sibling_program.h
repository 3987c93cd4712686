#pragma once

#include <string>
#include <vector>

namespace platform {

/// Runs the program with this bare name that stands beside the running one, with its streams, and
/// ends as it ends. Returns only when it cannot be started: the system's own words. Arguments are
/// UTF-8.
std::string becomeSibling(const std::string& name, const std::vector<std::string>& arguments);

} // namespace platform
