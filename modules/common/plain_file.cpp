#include "common/plain_file.h"

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#else
#include <windows.h>
#endif

namespace common {

#ifdef Q_OS_UNIX

bool openPlain(QFile& file, QIODevice::OpenMode mode) {
    const bool writes = mode.testFlag(QIODevice::WriteOnly);
    const int descriptor =
        open(QFile::encodeName(file.fileName()).constData(),
             (writes ? O_RDWR : O_RDONLY) | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    struct stat status = {};
    const bool isPlain = fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) &&
                         (!writes || (status.st_nlink == 1 && status.st_uid == geteuid()));
    if (isPlain && file.open(descriptor, mode | QIODevice::Unbuffered, QFile::AutoCloseHandle))
        return true;
    close(descriptor);
    return false;
}

#else

bool openPlain(QFile& file, QIODevice::OpenMode mode) {
    const std::wstring path = file.fileName().toStdWString();
    const DWORD attributes = GetFileAttributesW(path.c_str());
    const DWORD other = FILE_ATTRIBUTE_REPARSE_POINT | FILE_ATTRIBUTE_DIRECTORY;
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & other) == 0 &&
           file.open(mode | QIODevice::Unbuffered | QIODevice::ExistingOnly);
}

#endif

} // namespace common
