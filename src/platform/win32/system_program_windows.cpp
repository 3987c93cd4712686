#include "platform/system_program_windows.h"

#include <QDir>

#include <windows.h>

#include <string>

namespace platform {

namespace {

/// Characters that a path has at most.
constexpr DWORD kLongestPath = 32768;

QString titleOf(HWND window) {
    const int length = GetWindowTextLengthW(window);
    std::wstring text(static_cast<std::size_t>(length > 0 ? length : 0) + 1, L'\0');
    const int copied = GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
    return QString::fromWCharArray(text.data(), copied);
}

HWND handleOf(quint64 id) {
    return reinterpret_cast<HWND>(static_cast<quintptr>(id));
}

QString programOf(DWORD pid) {
    const HANDLE process = OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, pid);
    if (!process)
        return {};
    std::wstring path(kLongestPath, L'\0');
    DWORD length = kLongestPath;
    if (!QueryFullProcessImageNameW(process, 0, path.data(), &length))
        length = 0;
    CloseHandle(process);
    return QDir::fromNativeSeparators(
        QString::fromWCharArray(path.data(), static_cast<int>(length)));
}

class Win32ProgramWindows : public ProgramWindows {
public:
    /// Hidden windows count: what a program shows in the task bar is not always what owns its loop.
    std::vector<ProgramWindow> list() const override {
        std::vector<ProgramWindow> windows;
        EnumWindows(&Win32ProgramWindows::append, reinterpret_cast<LPARAM>(&windows));
        return windows;
    }

    WindowOwner owner(quint64 id) const override {
        DWORD pid = 0;
        GetWindowThreadProcessId(handleOf(id), &pid);
        return {qint64{pid}, programOf(pid)};
    }

    void postQuit(quint64 id) override {
        DWORD process = 0;
        const DWORD thread = GetWindowThreadProcessId(handleOf(id), &process);
        // To the thread: a window would get the message through its procedure, which need not
        // know it.
        if (thread != 0 && process != GetCurrentProcessId())
            PostThreadMessageW(thread, WM_QUIT, 0, 0);
    }

private:
    static BOOL CALLBACK append(HWND window, LPARAM windows) {
        // Old toolkits give a main window a hidden owner, which makes no dialog of it.
        const HWND owner = GetWindow(window, GW_OWNER);
        reinterpret_cast<std::vector<ProgramWindow>*>(windows)->push_back(
            {static_cast<quint64>(reinterpret_cast<quintptr>(window)), titleOf(window),
             owner != nullptr && IsWindowVisible(owner)});
        return TRUE;
    }
};

} // namespace

std::unique_ptr<ProgramWindows> systemProgramWindows() {
    return std::make_unique<Win32ProgramWindows>();
}

} // namespace platform
