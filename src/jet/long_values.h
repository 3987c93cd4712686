#pragma once

#include "jet/page_source.h"
#include "jet/result.h"

#include <cstdint>
#include <vector>

namespace jet {

/// Reads Memo and OLE values from their cells.
class LongValues {
public:
    explicit LongValues(PageSource& source) : source_(&source) {}

    /// Bytes of a value. They may lie in the cell, in a page (kept by `page`) or in a buffer that
    /// the next fetch overwrites.
    struct Value {
        Page page;
        Bytes bytes;
    };

    /// The value whose header and inline part are `cell`. The failure says what is wrong with the
    /// value and leaves it to the caller to say whose it is.
    Result<Value> fetch(Bytes cell);

    /// Many cells of a damaged file can share one long chain. One record gives out no more bytes
    /// than the file has, one pass over a table this many times as much.
    static constexpr std::uint64_t kPassBudget = 64;
    void startPass() { passBudget_ = kPassBudget * source_->fileSize(); }
    void startRecord() { recordBudget_ = source_->fileSize(); }

private:
    bool spend(std::uint64_t bytes);
    Result<Value> fetchSingle(RowPointer at, std::size_t length);
    Result<Value> fetchChain(RowPointer first, std::size_t length);

    PageSource* source_;
    std::uint64_t passBudget_ = 0;
    std::uint64_t recordBudget_ = 0;
    std::vector<std::uint8_t> pieces_;
};

} // namespace jet
