#pragma once

#include "files/descriptor.h"
#include "jet/page_sink.h"

#include <cstdint>
#include <filesystem>
#include <memory>

namespace jet {

/// A file that is there already, opened for changing pages in it. No other PageFile can have the
/// same file open meanwhile; readers can.
class PageFile : public PageSink {
public:
    /// The failure is of kind System: no such file, write-protected, or being changed by another
    /// program.
    static Result<std::unique_ptr<PageSink>> open(const std::filesystem::path& path);

    Result<void> write(std::uint32_t number, Bytes page) override;
    Result<void> sync() override;
    void cutBack() override;

private:
    PageFile(files::Descriptor file, std::filesystem::path path);

    files::Descriptor file_;
    std::filesystem::path path_;
    std::uint64_t size_;
};

} // namespace jet
