#pragma once

#include "coursedata/recordset.h"
#include "jet/result.h"

#include <QString>

#include <memory>

namespace coursedata {

enum class Access { ReadOnly, Writable };

/// Opens a table of a Jet database as a recordset, its first record current. The failure names the
/// file, table or structure at fault; opened Writable, that may be a file that cannot be written.
/// The file is kept from other writers only while a field is set. Other recordsets of the same
/// table must be opened again to see a field set through this one.
jet::Result<std::unique_ptr<Recordset>> openRecordset(const QString& path, const QString& table,
                                                      Access access = Access::ReadOnly);

} // namespace coursedata
