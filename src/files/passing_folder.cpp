#include "files/passing_folder.h"

#include <random>
#include <string>
#include <vector>

#ifndef _WIN32
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace files {

namespace fs = std::filesystem;

namespace {

/// Others have folders there too: the name is ours alone.
constexpr char kStart[] = "orvalente-passage-";

/// Chance makes a name of which nobody can be ahead; two at once is as good as never.
constexpr int kNames = 10;

/// Whether it is a folder that this person made, and no link.
bool isOwn(const fs::path& path) {
#ifdef _WIN32
    std::error_code error;
    return fs::is_directory(fs::symlink_status(path, error)); // the place is the person's own
#else
    struct stat status = {};
    return ::lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
           status.st_uid == ::geteuid();
#endif
}

void clearLeft(const fs::path& place) {
    std::error_code error;
    std::vector<fs::path> left;
    for (fs::directory_iterator entry(place, error), end; !error && entry != end;
         entry.increment(error))
        if (entry->path().filename().string().starts_with(kStart) && isOwn(entry->path()))
            left.push_back(entry->path());
    for (const fs::path& folder : left)
        if (DirectoryLock lock(folder); lock.isTaken())
            fs::remove_all(folder, error);
}

fs::path make(const fs::path& place, std::error_code& error) {
    std::random_device chance;
    for (int i = 0; i < kNames; ++i) {
        fs::path path = place / (kStart + std::to_string(chance()));
        error.clear();
        if (!fs::create_directory(path, error))
            continue;
        fs::permissions(path, fs::perms::owner_all, error);
        return path;
    }
    if (!error)
        error = std::make_error_code(std::errc::file_exists);
    return {};
}

} // namespace

PassingFolder::PassingFolder(std::error_code& error) {
    const fs::path place = fs::temp_directory_path(error);
    if (error)
        return;
    clearLeft(place);
    path_ = make(place, error);
    if (!path_.empty())
        lock_.emplace(path_);
}

PassingFolder::~PassingFolder() {
    std::error_code ignored;
    if (!path_.empty())
        fs::remove_all(path_, ignored);
}

} // namespace files
