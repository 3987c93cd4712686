// Preloaded into a program: counts its calls that change files below a directory, and lets one of
// them, or all from one on, fail as discs and their owners do. Told what to do by the environment:
//
//   FAULTS_BELOW  the directory, canonical
//   FAULTS_HOW    a name of kManners; none counts only
//   FAULTS_AT     number of the first call that it is about, from 0
//   FAULTS_LOG    where each call is told of, a line each; outside the directory
//
// The functions stand before those of the C library and ask the system themselves. What the C
// library calls within itself, as fopen() and fwrite() do, passes by: the programs write through
// neither, standard output aside.

#include "faults/open_calls.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

/// What a call does, as bits.
enum Kind : unsigned {
    kMake = 1,    ///< a new name: a file, a directory, a link
    kOpen = 2,    ///< an existing file, to write to it
    kWrite = 4,   ///< bytes
    kMove = 8,    ///< a name to another place
    kRemove = 16, ///< a name
    kAdjust = 32, ///< length, permissions
    kSync = 64,
    kClose = 128
};
constexpr unsigned kAny = 255;

struct Manner {
    std::string_view name;
    unsigned kinds; ///< that fail
    int error;
    bool once; ///< or all calls from there on
};

constexpr Manner kManners[] = {
    {"full", kMake | kWrite, ENOSPC, false},
    {"short", kMake | kWrite, ENOSPC, false}, ///< one write gets half through
    {"denied", kMake | kOpen | kMove | kRemove, EACCES, false},
    {"readonly", kAny & ~(kSync | kClose), EROFS, false},
    {"io", kAny, EIO, true},
    {"dead", kAny, EIO, false},
    {"gone", kAny, 0, true}, ///< the file is, before the call
    {"kill", kAny, 0, true},
};

std::string environment(const char* name) {
    const char* const value = std::getenv(name);
    return value ? value : "";
}

struct Plan {
    std::string below = environment("FAULTS_BELOW") + '/';
    std::string log = environment("FAULTS_LOG");
    const Manner* manner = nullptr;
    long at = std::atol(environment("FAULTS_AT").c_str());

    Plan() {
        const std::string how = environment("FAULTS_HOW");
        for (const Manner& row : kManners)
            if (row.name == how)
                manner = &row;
        unsetenv("LD_PRELOAD"); // the programs that this one starts are others
    }
};

const Plan& plan() {
    static const Plan kPlan;
    return kPlan;
}

std::atomic<long> calls = 0;
std::atomic<bool> wasShort = false;

std::string linkTarget(const std::string& link) {
    char path[PATH_MAX];
    const long length =
        syscall(SYS_readlinkat, AT_FDCWD, link.c_str(), path, static_cast<long>(sizeof path));
    return length > 0 ? std::string(path, static_cast<std::size_t>(length)) : std::string();
}

std::string placeOf(int descriptor) {
    return linkTarget("/proc/self/fd/" + std::to_string(descriptor));
}

std::string placeOf(int directory, const char* path) {
    if (*path == '/')
        return path;
    const std::string base =
        directory == AT_FDCWD ? linkTarget("/proc/self/cwd") : placeOf(directory);
    return base + '/' + path;
}

void tell(const char* call, const std::string& place) {
    if (plan().log.empty())
        return;
    const std::string line = std::string(call) + ' ' + place + '\n';
    const long log =
        syscall(SYS_openat, AT_FDCWD, plan().log.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0666);
    syscall(SYS_write, log, line.data(), line.size());
    syscall(SYS_close, log);
}

/// What becomes of a call.
struct Verdict {
    bool fails = false; ///< errno is set
    bool isShort = false;
};

Verdict judge(const char* call, Kind kind, const std::string& place) {
    if (!place.starts_with(plan().below))
        return {};
    const long number = calls++;
    tell(call, place);
    const Manner* const manner = plan().manner;
    if (!manner || number < plan().at || (manner->once && number != plan().at) ||
        !(manner->kinds & kind))
        return {};
    if (manner->name == "kill")
        std::raise(SIGKILL);
    if (manner->name == "gone") {
        syscall(SYS_unlinkat, AT_FDCWD, place.c_str(), 0);
        return {};
    }
    if (manner->name == "short" && kind == kWrite && !wasShort.exchange(true))
        return {.isShort = true};
    errno = manner->error;
    return {.fails = true};
}

bool writes(int descriptor) {
    return (syscall(SYS_fcntl, descriptor, F_GETFL) & O_ACCMODE) != O_RDONLY;
}

Verdict judge(const char* call, Kind kind, int descriptor) {
    return judge(call, kind, placeOf(descriptor));
}

bool fails(const char* call, Kind kind, int directory, const char* path) {
    return judge(call, kind, placeOf(directory, path)).fails;
}

/// Discs give room by the block: the part of a write up to one of its ends gets through, or
/// nothing.
constexpr off_t kBlock = 4096;

/// Of so many bytes at an offset, those that get through; none when the call fails.
std::size_t let(const char* call, int descriptor, std::size_t count, off_t offset, bool& fails) {
    const Verdict verdict = judge(call, kWrite, descriptor);
    fails = verdict.fails;
    if (!verdict.isShort)
        return count;
    const off_t middle = offset + static_cast<off_t>(count / 2);
    const off_t end = (middle + kBlock - 1) / kBlock * kBlock;
    if (end < offset + static_cast<off_t>(count))
        return static_cast<std::size_t>(end - offset);
    fails = true;
    errno = ENOSPC;
    return 0;
}

off_t positionOf(int descriptor) {
    return std::max<off_t>(syscall(SYS_lseek, descriptor, 0, SEEK_CUR), 0);
}

} // namespace

int preloaded::openFile(int directory, const char* path, int flags, unsigned mode) {
    struct stat status = {};
    const bool isThere = syscall(SYS_newfstatat, directory, path, &status, 0) == 0;
    const bool makes = (flags & O_CREAT) && !isThere;
    if ((makes || (flags & O_ACCMODE) != O_RDONLY) &&
        fails("open", makes ? kMake : kOpen, directory, path))
        return -1;
    return static_cast<int>(syscall(SYS_openat, directory, path, flags, mode));
}

extern "C" {

ssize_t write(int descriptor, const void* bytes, size_t count) {
    bool fails = false;
    const std::size_t some = let("write", descriptor, count, positionOf(descriptor), fails);
    return fails ? -1 : syscall(SYS_write, descriptor, bytes, some);
}
ssize_t pwrite(int descriptor, const void* bytes, size_t count, off_t offset) {
    bool fails = false;
    const std::size_t some = let("pwrite", descriptor, count, offset, fails);
    return fails ? -1 : syscall(SYS_pwrite64, descriptor, bytes, some, offset);
}
ssize_t pwrite64(int descriptor, const void* bytes, size_t count, off64_t offset) {
    return pwrite(descriptor, bytes, count, offset);
}
ssize_t writev(int descriptor, const iovec* pieces, int count) {
    if (judge("writev", kWrite, descriptor).fails)
        return -1;
    return syscall(SYS_writev, descriptor, pieces, count);
}
ssize_t sendfile(int to, int from, off_t* offset, size_t count) noexcept {
    bool fails = false;
    const std::size_t some = let("sendfile", to, count, positionOf(to), fails);
    return fails ? -1 : syscall(SYS_sendfile, to, from, offset, some);
}
ssize_t sendfile64(int to, int from, off64_t* offset, size_t count) noexcept {
    return sendfile(to, from, offset, count);
}
ssize_t copy_file_range(int from, off64_t* at, int to, off64_t* offset, size_t count,
                        unsigned flags) {
    bool fails = false;
    const std::size_t some = let("copy_file_range", to, count, positionOf(to), fails);
    return fails ? -1 : syscall(SYS_copy_file_range, from, at, to, offset, some, flags);
}
int renameat2(int from, const char* name, int to, const char* newName, unsigned flags) noexcept {
    // What comes into the directory from elsewhere changes it as well.
    const bool inside = placeOf(from, name).starts_with(plan().below);
    if (fails("rename", kMove, inside ? from : to, inside ? name : newName))
        return -1;
    return static_cast<int>(syscall(SYS_renameat2, from, name, to, newName, flags));
}
int renameat(int from, const char* name, int to, const char* newName) noexcept {
    return renameat2(from, name, to, newName, 0);
}
int rename(const char* name, const char* newName) noexcept {
    return renameat2(AT_FDCWD, name, AT_FDCWD, newName, 0);
}
int link(const char* name, const char* newName) noexcept {
    if (fails("link", kMake, AT_FDCWD, newName))
        return -1;
    return static_cast<int>(syscall(SYS_linkat, AT_FDCWD, name, AT_FDCWD, newName, 0));
}
int symlink(const char* target, const char* name) noexcept {
    if (fails("symlink", kMake, AT_FDCWD, name))
        return -1;
    return static_cast<int>(syscall(SYS_symlinkat, target, AT_FDCWD, name));
}
int mkdirat(int directory, const char* path, mode_t mode) noexcept {
    if (fails("mkdir", kMake, directory, path))
        return -1;
    return static_cast<int>(syscall(SYS_mkdirat, directory, path, mode));
}
int mkdir(const char* path, mode_t mode) noexcept {
    return mkdirat(AT_FDCWD, path, mode);
}
char* mkdtemp(char* pattern) noexcept {
    for (int i = 0; i < 1'000'000; ++i) {
        const std::string digits = std::to_string(1'000'000 + i).substr(1);
        std::copy(digits.begin(), digits.end(), std::string_view(pattern).size() - 6 + pattern);
        if (mkdir(pattern, 0700) == 0)
            return pattern;
        if (errno != EEXIST)
            return nullptr;
    }
    return nullptr;
}
int unlinkat(int directory, const char* path, int flags) noexcept {
    if (fails("unlink", kRemove, directory, path))
        return -1;
    return static_cast<int>(syscall(SYS_unlinkat, directory, path, flags));
}
int unlink(const char* path) noexcept {
    return unlinkat(AT_FDCWD, path, 0);
}
int rmdir(const char* path) noexcept {
    return unlinkat(AT_FDCWD, path, AT_REMOVEDIR);
}
int remove(const char* path) noexcept {
    struct stat status = {};
    const bool isFolder =
        syscall(SYS_newfstatat, AT_FDCWD, path, &status, AT_SYMLINK_NOFOLLOW) == 0 &&
        S_ISDIR(status.st_mode);
    return unlinkat(AT_FDCWD, path, isFolder ? AT_REMOVEDIR : 0);
}
int ftruncate(int descriptor, off_t length) noexcept {
    if (judge("ftruncate", kAdjust, descriptor).fails)
        return -1;
    return static_cast<int>(syscall(SYS_ftruncate, descriptor, length));
}
int ftruncate64(int descriptor, off64_t length) noexcept {
    return ftruncate(descriptor, length);
}
int fchmodat(int directory, const char* path, mode_t mode, int) noexcept {
    if (fails("chmod", kAdjust, directory, path))
        return -1;
    return static_cast<int>(syscall(SYS_fchmodat, directory, path, mode));
}
int chmod(const char* path, mode_t mode) noexcept {
    return fchmodat(AT_FDCWD, path, mode, 0);
}
int fchmod(int descriptor, mode_t mode) noexcept {
    if (judge("fchmod", kAdjust, descriptor).fails)
        return -1;
    return static_cast<int>(syscall(SYS_fchmod, descriptor, mode));
}
int fsync(int descriptor) {
    if (judge("fsync", kSync, descriptor).fails)
        return -1;
    return 0; // no power fails here, and waiting for the disc takes the most time of all
}
int fdatasync(int descriptor) {
    return fsync(descriptor);
}
int syncfs(int descriptor) noexcept {
    return judge("syncfs", kSync, descriptor).fails ? -1 : 0;
}
int close(int descriptor) {
    // Closed it is in any case: what comes too late is what had been written.
    const bool fails = writes(descriptor) && judge("close", kClose, descriptor).fails;
    const int error = errno;
    const long done = syscall(SYS_close, descriptor);
    if (!fails)
        return static_cast<int>(done);
    errno = error;
    return -1;
}
}
