#include "files/passing_file.h"

#include <string>

namespace files {

namespace fs = std::filesystem;

namespace {

/// Names that are tried: as many programs and threads can write in one directory at a time.
constexpr int kNames = 100;

/// Names that are looked at for what others left: more than one is rare.
constexpr int kCleared = 4;

fs::path nameOf(const fs::path& directory, int number) {
    return directory / (".partiel-" + std::to_string(number));
}

/// Takes away what nobody has a lock on.
void clear(const fs::path& path) {
    std::error_code error;
    if (!fs::is_regular_file(fs::symlink_status(path, error)))
        return;
    const Descriptor left(path, Descriptor::Mode::Read, error);
    // The name may be another's by now: then its file is not the one that was opened.
    if (left && left.takeLock() == Descriptor::Lock::Taken && left.isNamed(path))
        fs::remove(path, error);
}

} // namespace

PassingFile::PassingFile(const fs::path& directory, std::error_code& error) {
    for (int i = 0; i < kNames && (path_.empty() || i < kCleared); ++i) {
        const fs::path name = nameOf(directory, i);
        clear(name);
        if (!path_.empty())
            continue;
        error.clear();
        if (!make(name, error) && error != std::errc::file_exists)
            return;
    }
}

/// An error of "file exists" when the name is another's.
bool PassingFile::make(const fs::path& path, std::error_code& error) {
    Descriptor made(path, Descriptor::Mode::Create, error);
    if (!made)
        return false;
    const Descriptor::Lock lock = made.takeLock();
    // Somebody may have taken it for left, before it had its lock.
    if (lock == Descriptor::Lock::Held ||
        (lock == Descriptor::Lock::Taken && !made.isNamed(path))) {
        error = std::make_error_code(std::errc::file_exists);
        return false;
    }
    lock_ = made.again();
    content_ = std::move(made);
    path_ = path;
    return true;
}

PassingFile::~PassingFile() {
    // There are systems that take no open file away. The lock stays until the name is gone.
    content_ = {};
    std::error_code ignored;
    if (!path_.empty())
        fs::remove(path_, ignored);
}

bool PassingFile::becomes(const fs::path& target, std::error_code& error) {
    if (!content_.close(error))
        return false;
    fs::rename(path_, target, error);
    if (error)
        return false;
    path_.clear();
    lock_ = {};
    return true;
}

} // namespace files
