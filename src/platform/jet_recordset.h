#pragma once

#include "jet/result.h"
#include "platform/recordset.h"

#include <QString>

#include <memory>

namespace platform {

/// Opens a table of a Jet database as a recordset, its first record current. The failure names the
/// file, table or structure at fault.
jet::Result<std::unique_ptr<Recordset>> openRecordset(const QString& path, const QString& table);

} // namespace platform
