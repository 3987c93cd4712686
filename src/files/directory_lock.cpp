#include "files/directory_lock.h"

#include <fcntl.h>

#include <cerrno>

#ifdef _WIN32
#include <io.h>
#include <share.h>
#include <sys/stat.h>
#else
#include <sys/file.h>
#include <unistd.h>
#endif

namespace files {

#ifdef _WIN32
// Directories have no locks there; a file that nobody else can open, gone with its owner, has.
DirectoryLock::DirectoryLock(const std::filesystem::path& directory) {
    const auto path = directory / ".orvalente-cours.verrou";
    _wsopen_s(&number_, path.c_str(), _O_RDWR | _O_CREAT | _O_TEMPORARY | _O_NOINHERIT, _SH_DENYRW,
              _S_IREAD | _S_IWRITE);
    taken_ = number_ >= 0;
    held_ = taken_ || errno != EACCES;
}
DirectoryLock::~DirectoryLock() {
    if (number_ >= 0)
        _close(number_);
}
#else
DirectoryLock::DirectoryLock(const std::filesystem::path& directory)
    : number_(::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    taken_ = number_ >= 0 && flock(number_, LOCK_EX | LOCK_NB) == 0;
    held_ = taken_ || number_ < 0 || errno != EWOULDBLOCK;
}
DirectoryLock::~DirectoryLock() {
    if (number_ >= 0)
        ::close(number_);
}
#endif

} // namespace files
