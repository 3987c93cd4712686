#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

using FileBytes = std::vector<std::uint8_t>;

FileBytes readBytes(const std::filesystem::path& path);
void writeBytes(const std::filesystem::path& path, const FileBytes& bytes);

/// The sample database of that name, without its ending.
std::filesystem::path samplePath(const std::string& name);

/// A directory that is gone, with all in it, at the end of the test.
class ScratchFolder {
public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    std::filesystem::path operator/(const std::string& name) const { return path_ / name; }
    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

/// What a program said and how it ended.
struct ProgramRun {
    int status = -1; ///< 0 when it ended well
    std::string output;
};

/// Runs a shell command and waits for it.
ProgramRun run(const std::string& command);
