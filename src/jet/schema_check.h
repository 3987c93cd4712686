#pragma once

#include "jet/column.h"
#include "jet/result.h"

#include <span>
#include <string_view>

namespace jet {

/// Whether a table of that name and with those columns can be written; Refused, saying why not.
Result<void> checkSchema(std::u16string_view table, std::span<const Column> columns);

} // namespace jet
