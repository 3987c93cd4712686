#pragma once

#include "jet/value.h"

#include <optional>
#include <string>

namespace jet {

/// "-12.5000": always four decimals.
std::string toText(Currency value);
/// "-0.05": as many decimals as the scale.
std::string toText(const Decimal& value);
/// "{00112233-4455-6677-8899-AABBCCDDEEFF}", upper case.
std::string toText(const Guid& value);
/// Lower-case hexadecimal, two digits a byte.
std::string toHex(const Binary& value);
/// "yyyy-MM-ddTHH:mm:ss", rounded to the second; nothing outside the years 100 to 9999.
std::optional<std::string> toText(DateTime value);

} // namespace jet
