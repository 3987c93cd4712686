// Preloaded into a program: a directory on a share that goes away and comes back, as often as a
// file of the tests is there or not. Meanwhile all that is read below it fails with ESTALE, open
// files included, as those of a share do whose server was restarted; or it hangs: nothing fails,
// and whoever reads waits until the share is back.
//
//   AWAY_BELOW  the directory, canonical
//   AWAY_WHILE  the file
//   AWAY_HANGS  when it is set, a file that is made where somebody begins to wait

#include "faults/open_calls.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <ctime>
#include <string>

namespace {

constexpr timespec kLook{0, 10'000'000}; // a hundredth of a second

struct Variables {
    std::string below = of("AWAY_BELOW", "/-");
    std::string whileThere = of("AWAY_WHILE", "/-");
    std::string hangs = of("AWAY_HANGS", "");

    static std::string of(const char* name, const char* without) {
        const char* const value = std::getenv(name);
        return value ? value : without;
    }
};

const Variables& variables() {
    static const Variables kVariables;
    return kVariables;
}

bool isShareAway() {
    return syscall(SYS_faccessat, AT_FDCWD, variables().whileThere.c_str(), F_OK) == 0;
}

void waitForShare() {
    const long told = syscall(SYS_openat, AT_FDCWD, variables().hangs.c_str(),
                              O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    syscall(SYS_close, told);
    while (isShareAway())
        nanosleep(&kLook, nullptr);
}

bool isAway(const std::string& place) {
    if (!place.starts_with(variables().below) || !isShareAway())
        return false;
    if (!variables().hangs.empty()) {
        waitForShare();
        return false;
    }
    errno = ESTALE;
    return true;
}

bool isAway(int descriptor) {
    char path[PATH_MAX];
    const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
    const long length = syscall(SYS_readlinkat, AT_FDCWD, link.c_str(), path, sizeof path);
    return length > 0 && isAway(std::string(path, static_cast<std::size_t>(length)));
}

} // namespace

int preloaded::openFile(int directory, const char* path, int flags, unsigned mode) {
    return isAway(path) ? -1 : static_cast<int>(syscall(SYS_openat, directory, path, flags, mode));
}

extern "C" {

DIR* opendir(const char* path) {
    const int directory = open(path, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    return directory < 0 ? nullptr : fdopendir(directory);
}
ssize_t read(int descriptor, void* bytes, size_t count) {
    return isAway(descriptor) ? -1 : syscall(SYS_read, descriptor, bytes, count);
}
ssize_t pread(int descriptor, void* bytes, size_t count, off_t offset) {
    return isAway(descriptor) ? -1 : syscall(SYS_pread64, descriptor, bytes, count, offset);
}
ssize_t pread64(int descriptor, void* bytes, size_t count, off64_t offset) {
    return pread(descriptor, bytes, count, offset);
}
int statx(int directory, const char* path, int flags, unsigned mask,
          struct statx* status) noexcept {
    if (*path ? isAway(path) : isAway(directory))
        return -1;
    return static_cast<int>(syscall(SYS_statx, directory, path, flags, mask, status));
}
int fstatat(int directory, const char* path, struct stat* status, int flags) noexcept {
    if (isAway(path))
        return -1;
    return static_cast<int>(syscall(SYS_newfstatat, directory, path, status, flags));
}
int stat(const char* path, struct stat* status) noexcept {
    return fstatat(AT_FDCWD, path, status, 0);
}
int lstat(const char* path, struct stat* status) noexcept {
    return fstatat(AT_FDCWD, path, status, AT_SYMLINK_NOFOLLOW);
}
int access(const char* path, int mode) noexcept {
    return isAway(path) ? -1 : static_cast<int>(syscall(SYS_faccessat, AT_FDCWD, path, mode));
}
}
