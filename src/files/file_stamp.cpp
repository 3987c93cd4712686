#include "files/file_stamp.h"

#include <chrono>

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace files {

namespace {

/// The longest step of the file systems in use: that of FAT.
constexpr std::chrono::nanoseconds kLongestStep = std::chrono::seconds(2);

#ifdef _WIN32
using Clock = std::filesystem::file_time_type::clock;
#else
using Clock = std::chrono::system_clock;

std::int64_t nanoseconds(const timespec& time) {
    return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}
#endif

std::int64_t nanosecondsOf(Clock::time_point time) {
    return std::chrono::duration_cast<std::chrono::nanoseconds>(time.time_since_epoch()).count();
}

} // namespace

std::optional<FileStamp> stampOf(const std::filesystem::path& file) {
#ifdef _WIN32
    std::error_code error;
    const auto size = std::filesystem::file_size(file, error);
    const auto written =
        error ? Clock::time_point() : std::filesystem::last_write_time(file, error);
    if (error)
        return std::nullopt;
    return FileStamp{0, 0, size, nanosecondsOf(written), nanosecondsOf(written)};
#else
    struct stat status {};
    if (::stat(file.c_str(), &status) != 0)
        return std::nullopt;
    return FileStamp{status.st_dev, status.st_ino, static_cast<std::uint64_t>(status.st_size),
                     nanoseconds(status.st_mtim), nanoseconds(status.st_ctim)};
#endif
}

/// A time to come, as a clock that was set wrong gives it, settles once it is past.
bool isSettled(const FileStamp& stamp) {
    const std::int64_t newest = stamp.written > stamp.changed ? stamp.written : stamp.changed;
    return nanosecondsOf(Clock::now()) - newest > kLongestStep.count();
}

} // namespace files
