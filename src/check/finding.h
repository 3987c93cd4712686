#pragma once

#include "coursetool/report.h"

#include <optional>
#include <string>

namespace check {

struct Rule;

/// A change that settles a finding: one line of a source becomes another.
struct Edit {
    int line = 0;       ///< of the file, from 1
    std::string before; ///< the whole line as it is now, without its end
    std::string after;  ///< may end with "\n", where a line end was missing
    bool safe = false;  ///< the author can have meant nothing else
};

/// One thing that an author will want to know.
struct Finding {
    const Rule* rule = nullptr;
    coursetool::Place place; ///< line and column are those of the source; 0 for a whole file
    std::string record;      ///< "page 12", where the file is a database; otherwise empty
    std::string sentence;    ///< French, without a final full stop
    std::optional<Edit> edit = {};
};

} // namespace check
