#pragma once

#include "coursetool/file_list.h"
#include "coursetool/report.h"
#include "files/directory_lock.h"
#include "files/publication.h"

#include <filesystem>
#include <map>
#include <optional>
#include <vector>

namespace coursetool {

/// An installation directory that is being built. New files are first written to a folder of their
/// own inside it; publish() then moves them all into place. Until publish(), and after it failed,
/// a course that was there before is as it was. Files that the new course does not have stay.
///
/// What a crash leaves: the old course, whole, as long as files are being written; the new one once
/// they are, which the next build, or the shell that opens it, finishes putting in place. No link
/// in the directory is written through.
class StagedCourse {
public:
    explicit StagedCourse(std::filesystem::path directory);
    ~StagedCourse();
    StagedCourse(const StagedCourse&) = delete;
    StagedCourse& operator=(const StagedCourse&) = delete;

    /// Makes the directories; a fault when they cannot be made, or another build is at work there.
    bool open(Report& report);

    /// Where to write the new file with this path relative to the directory.
    std::filesystem::path pathFor(const std::filesystem::path& relative) const;
    /// Files written at pathFor(), and directories, to be published in this order.
    void add(const std::filesystem::path& relative) { files_.push_back(relative); }
    void addDirectory(const std::filesystem::path& relative) { folders_.push_back(relative); }

    bool publish(Report& report);

private:
    bool makeDirectory(const std::filesystem::path& path, std::error_code& error);
    bool makeInside(const std::filesystem::path& relative, std::error_code& error);
    std::filesystem::path standsAt(const std::filesystem::path& relative);
    std::vector<files::Publication::Replacement> plan(std::filesystem::path& at,
                                                      std::error_code& error);

    std::filesystem::path directory_;
    std::optional<files::DirectoryLock> lock_;
    files::Publication publication_;
    std::vector<std::filesystem::path> files_;
    std::vector<std::filesystem::path> folders_;
    std::vector<std::filesystem::path> madeDirectories_;
    std::map<std::filesystem::path, NameTable> present_; ///< by directory, before publishing
    bool published_ = false;
};

} // namespace coursetool
