#pragma once

#include "jet/bytes.h"
#include "jet/column.h"
#include "jet/value.h"

#include <optional>

namespace jet {

/// The value in the bytes of a cell that is neither NULL nor a text nor a Boolean. Fewer bytes than
/// the type takes give NULL.
Value decodeCell(Bytes bytes, const Column& column);

/// The value's bytes as they stand in a row; nothing when a column of that type cannot hold it.
/// Text, Memo and OLE have their own ways.
std::optional<Binary> encodeCell(const Value& value, const Column& column);

} // namespace jet
