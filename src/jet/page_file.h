#pragma once

#include "jet/bytes.h"
#include "jet/result.h"

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>

namespace jet {

/// Where the changed pages of a database go, one after the other.
class PageSink {
public:
    virtual ~PageSink() = default;
    /// Puts one whole page in its place; a number just past the end of the file adds it.
    virtual Result<void> write(std::uint32_t number, Bytes page) = 0;
    /// Returns when all that was written is on the disk.
    virtual Result<void> sync() = 0;
    /// Gives the file back the length, in bytes, it had when it was opened.
    virtual void cutBack() = 0;
};

/// A file that is there already, opened for changing pages in it. No other PageFile can have the
/// same file open meanwhile; readers can.
class PageFile : public PageSink {
public:
    /// The failure is of kind System: no such file, write-protected, or being changed by another
    /// program.
    static Result<std::unique_ptr<PageSink>> open(const std::filesystem::path& path);
    ~PageFile() override;
    PageFile(const PageFile&) = delete;
    PageFile& operator=(const PageFile&) = delete;

    Result<void> write(std::uint32_t number, Bytes page) override;
    Result<void> sync() override;
    void cutBack() override;

private:
    PageFile(std::FILE* file, std::filesystem::path path, std::uint64_t size);

    std::FILE* file_;
    std::filesystem::path path_;
    std::uint64_t size_;
};

} // namespace jet
