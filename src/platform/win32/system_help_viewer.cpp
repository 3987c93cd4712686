#include "platform/qt/system_help_viewer.h"

#include <QDir>

#include <windows.h>
// Needs the one above.
#include <shellapi.h>

namespace platform {

bool SystemHelpViewer::show(const QString& file) {
    // The viewer shows a file once: asked again it comes to the front by itself. Where there is no
    // viewer, nothing is said to open such files, and the answer is 32 or less.
    const std::wstring path = QDir::toNativeSeparators(file).toStdWString();
    const HINSTANCE answer =
        ShellExecuteW(nullptr, L"open", path.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    return reinterpret_cast<INT_PTR>(answer) > 32;
}

} // namespace platform
