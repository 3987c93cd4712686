#pragma once

#include "jet/database.h"
#include "jet/page_source.h"

#include <memory>
#include <vector>

namespace jet {

/// The user tables a database lists.
struct Catalog {
    std::vector<TableInfo> tables;
    Problems problems; ///< entries passed over
};

/// Reads the catalog by its own definition, of which only four columns must be there.
Result<Catalog> readCatalog(const std::shared_ptr<PageSource>& source);

} // namespace jet
