#pragma once

#include "jet/database.h"
#include "jet/result.h"
#include "jet/table.h"
#include "search/page_slice.h"

#include <cstddef>
#include <optional>

namespace search {

/// Folds records of the table "cours" as they come from the file.
class SliceReader {
public:
    /// See SearchablePages::open.
    static jet::Result<SliceReader> open(const jet::Database& database);

    std::size_t recordCount() { return table_.recordCount(); }

    /// What was passed over so far: records, and page sources that cannot be read.
    jet::Problems problems() const;

    /// Where a slice ends: long enough that what is done once for each of them does not count,
    /// short enough to stay in the processor's caches while it is searched.
    static constexpr std::size_t kSliceBytes = 256 * 1024;
    /// For stretches of records that are passed over.
    static constexpr int kSliceRecords = 1024;

    /// Puts the records from position `first` on into `slice`, at least one. False when there is
    /// none.
    bool read(int first, PageSlice& slice);

private:
    struct Columns {
        std::size_t fpc;
        std::size_t moteur;
        std::optional<std::size_t> titre;
        std::optional<std::size_t> numeropage;
    };

    SliceReader(jet::Table table, Columns columns);
    bool addSource(jet::RecordView& record, FoldedText& sources);
    void add(jet::RecordView& record, PageSlice& slice);

    jet::Table table_;
    Columns columns_;
    jet::Problems unreadable_;
};

} // namespace search
