#pragma once

#include "coursetool/report.h"

#include <filesystem>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace coursetool {

/// What stands in a directory, in the order of its names' code points. A fault when it cannot be
/// listed.
std::vector<std::filesystem::directory_entry> entriesOf(const std::filesystem::path& directory,
                                                        Report& report);

/// Whether the entry is a file that stands in `top` in the end. A link that leads out of there is a
/// fault: who copies or publishes a folder must not take along what others keep elsewhere.
bool isFileOf(const std::filesystem::path& top, const std::filesystem::directory_entry& entry,
              Report& report);
/// The same for a directory.
bool isFolderOf(const std::filesystem::path& top, const std::filesystem::path& folder,
                Report& report);

/// Everything under a directory of `top`, with paths relative to the directory, in the order of
/// their names, a directory before what it holds. Links to files of `top` count as files; links to
/// directories, and whatever is neither file nor directory, are faults: following them could lead
/// round in circles.
struct FileTree {
    std::vector<std::filesystem::path> files;
    std::vector<std::filesystem::path> directories;
};
FileTree listTree(const std::filesystem::path& directory, const std::filesystem::path& top,
                  Report& report);

/// File names of one directory, found again without regard to letter case.
class NameTable {
public:
    void add(const std::filesystem::path& name);
    /// The exact name when it is there, otherwise the one added first that differs only in case.
    std::optional<std::filesystem::path> find(const std::filesystem::path& name) const;

private:
    /// Names that may be the same stand under one key.
    std::unordered_map<std::string, std::vector<std::filesystem::path>> names_;
};

} // namespace coursetool
