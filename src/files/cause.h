#pragma once

#include <string>
#include <system_error>

namespace files {

/// Why the system refused, as the end of a French sentence without its full stop ("le disque est
/// plein"). The system's own words would be in another language; what has no words here is told by
/// its number.
std::string causeOf(std::error_code error);

/// What the last call of the system that failed has left behind.
std::error_code lastError();

} // namespace files
