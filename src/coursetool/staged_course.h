#pragma once

#include "coursetool/file_list.h"
#include "coursetool/report.h"

#include <filesystem>
#include <map>
#include <vector>

namespace coursetool {

/// An installation directory that is being built. New files are first written to a folder of their
/// own inside it; publish() then moves them all into place. Until publish(), and after it failed,
/// a course that was there before is as it was. Files that the new course does not have stay.
///
/// What a crash leaves: while files are being written, the old course, whole, and the folder
/// kStagingFolder, which the next build removes. While they are moved, every file whole, but some
/// new and some old; the old ones are in the staging folder's "ancien" (the databases go last, so
/// that a new page finds its pictures). Building again mends it. Two builds must not run into one
/// directory at once.
class StagedCourse {
public:
    static constexpr char kStagingFolder[] = ".orvalente-cours";

    explicit StagedCourse(std::filesystem::path directory);
    ~StagedCourse();
    StagedCourse(const StagedCourse&) = delete;
    StagedCourse& operator=(const StagedCourse&) = delete;

    /// Makes the directories; a fault when they cannot be made.
    bool open(Report& report);

    /// Where to write the new file with this path relative to the directory.
    std::filesystem::path pathFor(const std::filesystem::path& relative) const;
    /// Files written at pathFor(), and directories, to be published in this order.
    void add(const std::filesystem::path& relative) { files_.push_back(relative); }
    void addDirectory(const std::filesystem::path& relative) { folders_.push_back(relative); }

    bool publish(Report& report);

private:
    struct Replacement {
        std::filesystem::path target;
        std::filesystem::path old;    ///< the file that was there: `target` or a case variant
        std::filesystem::path backup; ///< empty when there was none
    };

    bool makeDirectory(const std::filesystem::path& path, std::error_code& error);
    /// The file that the new one at `target` takes the place of; empty when there is none.
    std::filesystem::path standsAt(const std::filesystem::path& target);
    bool replace(const std::filesystem::path& relative, std::error_code& error);
    void rollBack();

    std::filesystem::path directory_;
    std::vector<std::filesystem::path> files_;
    std::vector<std::filesystem::path> folders_;
    std::vector<std::filesystem::path> madeDirectories_;
    std::map<std::filesystem::path, NameTable> present_; ///< by directory, before publishing
    std::vector<Replacement> done_;
    bool published_ = false;
};

} // namespace coursetool
