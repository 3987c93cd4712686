#pragma once

#include "jet/bytes.h"
#include "jet/column.h"
#include "jet/value.h"

namespace jet {

/// The value in the bytes of a cell that is neither NULL nor a text nor a Boolean. Fewer bytes than
/// the type takes give NULL.
Value decodeCell(Bytes bytes, const Column& column);

} // namespace jet
