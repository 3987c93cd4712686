#pragma once

#include "jet/column.h"
#include "jet/format.h"
#include "jet/value.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace jet {

/// The bytes of a value, or why the column cannot hold it.
struct EncodedCell {
    std::vector<std::uint8_t> bytes;
    const char* fault = nullptr; ///< French

    EncodedCell(std::vector<std::uint8_t> encoded) : bytes(std::move(encoded)) {}
    EncodedCell(const char* why) : fault(why) {}
};

/// Encodes a value that is not NULL. Of Memo and OLE, the value alone, without its header; of
/// Boolean, whose value is its bit in the row, nothing.
EncodedCell encodeCell(const Value& value, const Column& column, const Format& format = kJet4);

} // namespace jet
