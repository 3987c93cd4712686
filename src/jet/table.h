#pragma once

#include "jet/column.h"
#include "jet/problems.h"
#include "jet/result.h"
#include "jet/text_sink.h"
#include "jet/value.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace jet {

class TableReader;

/// One record during Table::visit. Its cells are read when they are asked for; it must not be kept.
/// Column numbers are indices into Table::columns().
class RecordView {
public:
    virtual ~RecordView() = default;
    virtual std::size_t position() const = 0;
    virtual bool isNull(std::size_t column) = 0;
    virtual Result<Value> value(std::size_t column) = 0;
    /// The same into a Value that is used again and again. A failure leaves it as it was.
    virtual Result<void> read(std::size_t column, Value& into) = 0;
    /// A Text or Memo cell as it is stored, without going through a Value. False, and nothing
    /// given to `out`, for NULL and for other types, and on a failure too.
    virtual Result<bool> readText(std::size_t column, TextSink& out) = 0;
};

/// The records of one table, in the order of its pages. A record is read when it is asked for;
/// what is kept is a few bytes for each page of the table. Rows too damaged to be read are passed
/// over and have no position; problems() tells of them. Positions start at 0 and stay the same as
/// long as the file does. Not to be used from two
/// threads at once, nor two tables of one Database; nor from within its own callbacks.
class Table {
public:
    Table(Table&&) noexcept;
    Table& operator=(Table&&) noexcept;
    ~Table();

    const std::u16string& name() const;
    const std::vector<Column>& columns() const;
    /// Column of that name, letter case aside; nothing when there is none.
    std::optional<std::size_t> columnIndex(std::u16string_view name) const;

    /// Number of records. The first call visits each page of the table once (not the memos).
    std::size_t recordCount();

    /// One cell. NotFound outside the table; Damaged when the cell, its long value included, cannot
    /// be read.
    Result<Value> value(std::size_t position, std::size_t column);
    /// All cells of a record, in the order of columns(). Damaged when one of them cannot be read.
    Result<std::vector<Value>> record(std::size_t position);

    /// Called with the position and the cells asked for, in the order asked; false ends the scan.
    using ScanCallback = std::function<bool(std::size_t, std::span<const Value>)>;
    /// Reads the given columns of all records, in order. Memos that are not asked for are not
    /// touched. A cell that cannot be read is NULL and is told in the result, with all rows passed
    /// over.
    Problems scan(std::span<const std::size_t> columns, const ScanCallback& callback);

    /// Called with each record in turn; false ends the visit.
    using VisitCallback = std::function<bool(RecordView&)>;
    /// The fastest way through whole records, from position `first` on. The result tells of the
    /// rows passed over. A visit can be taken up again where the latest one ended.
    Problems visit(const VisitCallback& callback, std::size_t first = 0);

    /// Rows and pages passed over so far.
    const Problems& problems() const;

private:
    friend class Database;
    explicit Table(std::unique_ptr<TableReader> reader);
    std::unique_ptr<TableReader> reader_;
};

} // namespace jet
