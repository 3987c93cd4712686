#pragma once

#include "coursetool/report.h"
#include "coursetool/tables.h"
#include "jet/value.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace coursetool {

/// The fields of one source, in the order of the rules they were read by. A field that was not
/// given, or given wrongly, is NULL; a flag that was not given is false.
struct Fields {
    std::vector<jet::Value> values;
    std::vector<Place> places; ///< of the values; line 0 where none was given
};

/// Reads TOML. Names every fault: syntax, unknown fields, values of another type or out of range,
/// required fields that are missing. `firstLine` is the line of `file` on which `toml` starts.
Fields readFields(std::string_view toml, int firstLine, const std::string& file,
                  std::span<const FieldRule> rules, Report& report);

} // namespace coursetool
