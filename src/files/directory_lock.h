#pragma once

#include <filesystem>

namespace files {

/// Keeps other programs that ask for it out of a directory, until it goes or the program dies.
class DirectoryLock {
public:
    explicit DirectoryLock(const std::filesystem::path& directory);
    ~DirectoryLock();
    DirectoryLock(const DirectoryLock&) = delete;
    DirectoryLock& operator=(const DirectoryLock&) = delete;

    /// False when another program has it. File systems that know no locks do without: then it is
    /// held by all.
    bool isHeld() const { return held_; }
    /// Whether it keeps others out for sure.
    bool isTaken() const { return taken_; }

private:
    int number_ = -1;
    bool held_ = true;
    bool taken_ = false;
};

} // namespace files
