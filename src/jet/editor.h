#pragma once

#include "jet/result.h"
#include "jet/table.h"
#include "jet/value.h"

#include <cstddef>
#include <filesystem>
#include <memory>
#include <span>
#include <string_view>

namespace jet {

class PageSink;

/// A value for the column of that name, letter case aside.
struct CellChange {
    std::u16string_view column;
    Value value; ///< of the column's type, as for TableWriter::append; NULL makes the cell NULL
};

/// Changes rows of a database that is there already, of Jet 3 or Jet 4, in place. Each change is
/// written page by page in such an order that the file, should the program die in between, holds
/// the row either as it was or as it was to become, and all others untouched. Other editors of the
/// same file are kept out meanwhile. Tables opened before must be opened again to see the change.
class DatabaseEditor {
public:
    /// System when the file cannot be written, or when a lock file beside it (same name, ending
    /// .ldb) says that another program has the database open.
    static Result<DatabaseEditor> open(const std::filesystem::path& path);
    /// The same with the pages written to `sink` instead of the file.
    static Result<DatabaseEditor> open(const std::filesystem::path& path,
                                       std::unique_ptr<PageSink> sink);

    DatabaseEditor(DatabaseEditor&&) noexcept;
    DatabaseEditor& operator=(DatabaseEditor&&) noexcept;
    ~DatabaseEditor();

    /// Changes cells of the record at `position` (as in Table) all at once. Refused for columns an
    /// index is made of, columns that number themselves, and values that do not fit; Damaged when
    /// a structure the change depends on is. After a failure the record is as it was.
    Result<void> change(std::u16string_view table, std::size_t position,
                        std::span<const CellChange> cells);
    /// Gives a Text or Memo another text.
    Result<void> changeText(std::u16string_view table, std::size_t position,
                            std::u16string_view column, std::u16string_view text);

private:
    DatabaseEditor(std::filesystem::path path, std::unique_ptr<PageSink> sink);

    std::filesystem::path path_;
    std::unique_ptr<PageSink> sink_;
};

} // namespace jet
