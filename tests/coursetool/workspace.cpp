#include "coursetool/workspace.h"

#include "coursetool/captured.h"
#include "coursetool/dump.h"
#include "jet/database_file.h"

#include <algorithm>
#include <fstream>
#include <sstream>

namespace fs = std::filesystem;

Workspace::Workspace() {
    std::string name = (fs::temp_directory_path() / "orvalente-XXXXXX").string();
    if (!mkdtemp(name.data()))
        throw std::runtime_error("no temporary directory");
    root_ = name;
}

Workspace::~Workspace() {
    std::error_code ignored;
    fs::remove_all(root_, ignored);
}

void Workspace::write(const std::string& relative, std::string_view text) const {
    fs::create_directories(path(relative).parent_path());
    std::ofstream(path(relative), std::ios::binary) << text;
}

std::string Workspace::read(const std::string& relative) const {
    std::ostringstream text;
    text << std::ifstream(path(relative), std::ios::binary).rdbuf();
    return text.str();
}

bool Workspace::has(const std::string& relative) const {
    return fs::exists(path(relative));
}

std::vector<std::string> Workspace::files(const std::string& relative) const {
    std::vector<std::string> found;
    for (const auto& entry : fs::recursive_directory_iterator(path(relative)))
        if (entry.is_regular_file())
            found.push_back(fs::relative(entry.path(), path(relative)).generic_string());
    std::sort(found.begin(), found.end());
    return found;
}

std::vector<std::string> Workspace::rows(const std::string& database,
                                         const std::string& table) const {
    coursetool::Report report;
    const std::vector<std::string> lines =
        capturedLines([&](auto& out) { coursetool::dump(path(database), table, out, report); });
    EXPECT_EQ(textOf(report), "");
    return lines;
}

void writeDatabase(const fs::path& path, const std::vector<NewTable>& tables) {
    auto database = jet::createDatabase(path);
    ASSERT_TRUE(database) << database.error().sentence;
    for (const NewTable& table : tables) {
        auto writer = database->addTable(table.name, table.columns);
        ASSERT_TRUE(writer) << writer.error().sentence;
        for (const auto& row : table.rows) {
            const auto done = writer->append(row);
            ASSERT_TRUE(done) << done.error().sentence;
        }
    }
    const auto done = database->finish();
    ASSERT_TRUE(done) << done.error().sentence;
}

std::string textOf(const coursetool::Report& report) {
    std::string text;
    for (const std::string& line : report.lines())
        text += line + '\n';
    return text;
}
