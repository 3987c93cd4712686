#include "files/descriptor.h"

#include "files/cause.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <utility>

#ifdef _WIN32
#include <io.h>
#include <share.h>
#else
#include <sys/file.h>
#include <unistd.h>
#endif

namespace files {

namespace {

// What differs between the systems.
#ifdef _WIN32
int openFile(const std::filesystem::path& path, Descriptor::Mode mode) {
    const int flags = mode == Descriptor::Mode::Read       ? _O_RDONLY
                      : mode == Descriptor::Mode::Existing ? _O_WRONLY | _O_TRUNC
                      : mode == Descriptor::Mode::Change   ? _O_RDWR
                                                           : _O_RDWR | _O_CREAT | _O_EXCL;
    int number = -1;
    _wsopen_s(&number, path.c_str(), flags | _O_BINARY | _O_NOINHERIT, _SH_DENYNO,
              _S_IREAD | _S_IWRITE);
    return number;
}
long long readOnce(int number, std::uint64_t offset, std::uint8_t* bytes, std::size_t count) {
    if (_lseeki64(number, static_cast<long long>(offset), SEEK_SET) < 0)
        return -1;
    return _read(number, bytes, static_cast<unsigned>(count));
}
long long writeOnce(int number, const std::uint8_t* bytes, std::size_t count) {
    return _write(number, bytes, static_cast<unsigned>(count));
}
long long writeOnceAt(int number, std::uint64_t offset, const std::uint8_t* bytes,
                      std::size_t count) {
    return _lseeki64(number, static_cast<long long>(offset), SEEK_SET) < 0
               ? -1
               : writeOnce(number, bytes, count);
}
int flushToDisk(int number) {
    return _commit(number);
}
int closeFile(int number) {
    return _close(number);
}
int resize(int number, std::uint64_t length) {
    return _chsize_s(number, static_cast<long long>(length)) == 0 ? 0 : -1;
}
int duplicate(int) {
    return -1;
}
Descriptor::Lock lockFile(int) {
    return Descriptor::Lock::Unknown;
}
bool isSame(int, const std::filesystem::path&) {
    return false;
}
using Status = struct _stat64;
bool statusOf(int number, Status& status) {
    return _fstat64(number, &status) == 0;
}
constexpr auto kRegular = _S_IFREG;
constexpr auto kKind = _S_IFMT;
#else
int openFile(const std::filesystem::path& path, Descriptor::Mode mode) {
    const int flags = mode == Descriptor::Mode::Read       ? O_RDONLY | O_NONBLOCK
                      : mode == Descriptor::Mode::Existing ? O_WRONLY | O_TRUNC
                      : mode == Descriptor::Mode::Change   ? O_RDWR
                                                           : O_RDWR | O_CREAT | O_EXCL;
    return ::open(path.c_str(), flags | O_CLOEXEC | O_NOCTTY, 0666);
}
long long readOnce(int number, std::uint64_t offset, std::uint8_t* bytes, std::size_t count) {
    return ::pread(number, bytes, count, static_cast<off_t>(offset));
}
long long writeOnce(int number, const std::uint8_t* bytes, std::size_t count) {
    return ::write(number, bytes, count);
}
long long writeOnceAt(int number, std::uint64_t offset, const std::uint8_t* bytes,
                      std::size_t count) {
    return ::pwrite(number, bytes, count, static_cast<off_t>(offset));
}
int flushToDisk(int number) {
    // What has no notion of a disk, as some file systems, is as safe as it gets.
    return ::fsync(number) == 0 || errno == EINVAL || errno == EROFS ? 0 : -1;
}
int closeFile(int number) {
    return ::close(number);
}
int resize(int number, std::uint64_t length) {
    return ::ftruncate(number, static_cast<off_t>(length));
}
int duplicate(int number) {
    return ::fcntl(number, F_DUPFD_CLOEXEC, 0);
}
Descriptor::Lock lockFile(int number) {
    if (::flock(number, LOCK_EX | LOCK_NB) == 0)
        return Descriptor::Lock::Taken;
    return errno == EWOULDBLOCK ? Descriptor::Lock::Held : Descriptor::Lock::Unknown;
}
bool isSame(int number, const std::filesystem::path& path) {
    struct stat own = {};
    struct stat named = {};
    return ::fstat(number, &own) == 0 && ::lstat(path.c_str(), &named) == 0 &&
           own.st_dev == named.st_dev && own.st_ino == named.st_ino;
}
using Status = struct stat;
bool statusOf(int number, Status& status) {
    return ::fstat(number, &status) == 0;
}
constexpr auto kRegular = S_IFREG;
constexpr auto kKind = S_IFMT;
#endif

/// `once` moves what is left, from an offset on, and gives how much, 0 at the end, less when it
/// failed.
template <class Once>
bool moveAll(std::size_t count, Once once, std::error_code& error) {
    for (std::size_t done = 0; done < count;) {
        const long long moved = once(done, count - done);
        if (moved < 0 && errno == EINTR)
            continue;
        if (moved < 0)
            error = lastError();
        if (moved <= 0)
            return false;
        done += static_cast<std::size_t>(moved);
    }
    return true;
}

} // namespace

Descriptor::Descriptor(const std::filesystem::path& path, Mode mode, std::error_code& error)
    : number_(openFile(path, mode)) {
    if (number_ < 0)
        error = lastError();
}

Descriptor::~Descriptor() {
    if (number_ >= 0)
        closeFile(number_);
}

Descriptor::Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
}

bool Descriptor::isRegularFile() const {
    Status status{};
    return statusOf(number_, status) && (status.st_mode & kKind) == kRegular;
}

std::uint64_t Descriptor::size() const {
    Status status{};
    const bool known = statusOf(number_, status) && (status.st_mode & kKind) == kRegular;
    return known ? static_cast<std::uint64_t>(status.st_size) : 0;
}

bool Descriptor::readAt(std::uint64_t offset, std::span<std::uint8_t> bytes,
                        std::error_code& error) const {
    const auto once = [&](std::size_t done, std::size_t left) {
        return readOnce(number_, offset + done, bytes.data() + done, left);
    };
    return moveAll(bytes.size(), once, error);
}

bool Descriptor::write(std::span<const std::uint8_t> bytes, std::error_code& error) const {
    const auto once = [&](std::size_t done, std::size_t left) {
        return writeOnce(number_, bytes.data() + done, left);
    };
    return moveAll(bytes.size(), once, error);
}

bool Descriptor::writeAt(std::uint64_t offset, std::span<const std::uint8_t> bytes,
                         std::error_code& error) const {
    const auto once = [&](std::size_t done, std::size_t left) {
        return writeOnceAt(number_, offset + done, bytes.data() + done, left);
    };
    return moveAll(bytes.size(), once, error);
}

bool Descriptor::setLength(std::uint64_t length, std::error_code& error) const {
    if (resize(number_, length) == 0)
        return true;
    error = lastError();
    return false;
}

bool Descriptor::sync(std::error_code& error) const {
    if (flushToDisk(number_) == 0)
        return true;
    error = lastError();
    return false;
}

bool Descriptor::close(std::error_code& error) {
    if (closeFile(std::exchange(number_, -1)) == 0)
        return true;
    error = lastError();
    return false;
}

Descriptor::Lock Descriptor::takeLock() const {
    return lockFile(number_);
}

Descriptor Descriptor::again() const {
    Descriptor other;
    other.number_ = duplicate(number_);
    return other;
}

bool Descriptor::isNamed(const std::filesystem::path& path) const {
    return isSame(number_, path);
}

void syncDirectory(const std::filesystem::path& directory) {
    std::error_code ignored;
    if (const Descriptor opened(directory, Descriptor::Mode::Read, ignored); opened)
        opened.sync(ignored);
}

bool syncFileSystem([[maybe_unused]] const std::filesystem::path& directory,
                    [[maybe_unused]] std::error_code& error) {
#ifdef __linux__
    const int number = openFile(directory, Descriptor::Mode::Read);
    const bool done = number >= 0 && ::syncfs(number) == 0;
    if (!done)
        error = lastError();
    if (number >= 0)
        closeFile(number);
    return done;
#else
    return true;
#endif
}

} // namespace files
