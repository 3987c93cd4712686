#include "platform/plain_file.h"

#include <QDir>

#include <fcntl.h>
#include <io.h>
#include <windows.h>

namespace platform {

namespace {

/// A reparse point is what a link, a junction or a mounted folder is here.
bool mayBeUsed(HANDLE handle, PlainAccess access) {
    BY_HANDLE_FILE_INFORMATION information = {};
    if (GetFileType(handle) != FILE_TYPE_DISK || !GetFileInformationByHandle(handle, &information))
        return false;
    constexpr DWORD kOther = FILE_ATTRIBUTE_REPARSE_POINT | FILE_ATTRIBUTE_DIRECTORY;
    return (information.dwFileAttributes & kOther) == 0 &&
           (access == PlainAccess::Read || information.nNumberOfLinks == 1);
}

} // namespace

bool openPlainFile(QFile& file, PlainAccess access) {
    const bool writes = access != PlainAccess::Read;
    const std::wstring path = QDir::toNativeSeparators(file.fileName()).toStdWString();
    // The link itself is opened, not what it leads to. No started program inherits the handle.
    const HANDLE handle =
        CreateFileW(path.c_str(), writes ? GENERIC_READ | GENERIC_WRITE : GENERIC_READ,
                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                    access == PlainAccess::ReadWrite ? OPEN_ALWAYS : OPEN_EXISTING,
                    FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return false;
    const int descriptor = mayBeUsed(handle, access)
                               ? _open_osfhandle(reinterpret_cast<intptr_t>(handle),
                                                 _O_BINARY | (writes ? _O_RDWR : _O_RDONLY))
                               : -1;
    if (descriptor < 0) {
        CloseHandle(handle);
        return false;
    }
    const auto mode = QIODevice::Unbuffered | (writes ? QIODevice::ReadWrite : QIODevice::ReadOnly);
    if (file.open(descriptor, mode, QFile::AutoCloseHandle))
        return true;
    _close(descriptor);
    return false;
}

} // namespace platform
