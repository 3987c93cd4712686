#include "platform/plain_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

namespace {

/// Without waiting for a pipe's other end, and without a terminal becoming ours.
constexpr int kCarefully = O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;

bool mayBeUsed(int descriptor, PlainAccess access) {
    struct stat status = {};
    if (fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode))
        return false;
    return access == PlainAccess::Read || (status.st_nlink == 1 && status.st_uid == geteuid());
}

} // namespace

bool openPlainFile(QFile& file, PlainAccess access) {
    const bool writes = access != PlainAccess::Read;
    const int made = access == PlainAccess::ReadWrite ? O_CREAT : 0;
    const int descriptor = open(QFile::encodeName(file.fileName()).constData(),
                                kCarefully | (writes ? O_RDWR | made : O_RDONLY), 0600);
    if (descriptor < 0)
        return false;
    const auto mode = QIODevice::Unbuffered | (writes ? QIODevice::ReadWrite : QIODevice::ReadOnly);
    if (mayBeUsed(descriptor, access) && file.open(descriptor, mode, QFile::AutoCloseHandle))
        return true;
    close(descriptor);
    return false;
}

} // namespace platform
