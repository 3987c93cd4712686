#pragma once

#include "jet/map_pages.h"
#include "jet/output_file.h"
#include "jet/result.h"
#include "jet/table_builder.h"

#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace jet {

/// What a DatabaseWriter does; see there.
class DatabaseBuilder {
public:
    explicit DatabaseBuilder(std::unique_ptr<OutputFile> file);

    Result<TableBuilder*> addTable(std::u16string_view name, std::span<const Column> columns);
    Result<void> finish();

private:
    struct Table {
        std::unique_ptr<MapPages> maps;
        std::unique_ptr<TableBuilder> builder;
    };

    Result<void> listTables();
    void writePages();
    void writeGlobalMap();

    std::unique_ptr<OutputFile> file_;
    std::unique_ptr<MapPages> systemMaps_;
    std::vector<std::unique_ptr<TableBuilder>> systemTables_;
    std::vector<Table> tables_;
};

} // namespace jet
