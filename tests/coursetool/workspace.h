#pragma once

#include "coursetool/report.h"
#include "jet/writer.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

/// A directory of its own for one test, gone with it.
class Workspace {
public:
    Workspace();
    ~Workspace();
    Workspace(const Workspace&) = delete;
    Workspace& operator=(const Workspace&) = delete;

    std::filesystem::path path(const std::string& relative = {}) const { return root_ / relative; }
    /// Writes a file, its directories included.
    void write(const std::string& relative, std::string_view text) const;
    std::string read(const std::string& relative) const;
    bool has(const std::string& relative) const;
    /// Paths of all files below a directory, relative to it, sorted.
    std::vector<std::string> files(const std::string& relative) const;

    /// Lines of `dump` for one table; a fault fails the test.
    std::vector<std::string> rows(const std::string& database, const std::string& table) const;

private:
    std::filesystem::path root_;
};

/// A table as it is given to the writer.
struct NewTable {
    std::u16string name;
    std::vector<jet::Column> columns;
    std::vector<std::vector<jet::Value>> rows;
};
void writeDatabase(const std::filesystem::path& path, const std::vector<NewTable>& tables);

/// The text of a whole report, for comparing and searching.
std::string textOf(const coursetool::Report& report);
