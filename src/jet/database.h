#pragma once

#include "jet/byte_source.h"
#include "jet/problems.h"
#include "jet/result.h"
#include "jet/table.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace jet {

enum class Engine { Jet3, Jet4 };

struct TableInfo {
    std::u16string name;
    std::uint32_t definitionPage = 0;
};

/// A database opened for reading. Opening reads the header and the catalog, nothing else.
class Database {
public:
    /// `name`, UTF-8, is what failures call it. For files see database_file.h.
    static Result<Database> open(std::unique_ptr<ByteSource> source, std::string_view name);

    Database(Database&&) noexcept;
    Database& operator=(Database&&) noexcept;
    ~Database();

    Engine engine() const;

    /// The tables of the user, in the order of the catalog; system tables are left out.
    const std::vector<TableInfo>& tables() const;

    /// The table of that name, letter case aside: NotFound when there is none, Damaged when its
    /// definition cannot be read. The table may outlive the database object.
    Result<Table> table(std::u16string_view name) const;

    /// Entries of the catalog that were passed over.
    const Problems& problems() const;

private:
    struct State;
    explicit Database(std::unique_ptr<State> state);
    std::unique_ptr<State> state_;
};

} // namespace jet
