#include "platform/x11/x11_program_windows.h"

#include "platform/posix/process_family.h"
#include "platform/x11/x11_display.h"

#include <QSysInfo>

namespace platform {

namespace {

bool isThisMachine(const QByteArray& name) {
    return QString::fromLocal8Bit(name).compare(QSysInfo::machineHostName(), Qt::CaseInsensitive) ==
           0;
}

} // namespace

std::vector<ProgramWindow> X11ProgramWindows::list() const {
    const X11Display display(display_);
    if (!display.isOpen())
        return {};
    std::vector<ProgramWindow> windows;
    for (const xcb_window_t window : display.programWindows())
        windows.push_back({window, display.title(window), display.isTransient(window)});
    return windows;
}

void X11ProgramWindows::postQuit(quint64 id) {
    const X11Display display(display_);
    if (!display.isOpen())
        return;
    const auto window = static_cast<xcb_window_t>(id);
    const QByteArray machine = display.clientMachine(window);
    const qint64 pid = display.processId(window);
    if (!machine.isEmpty() && !isThisMachine(machine))
        return;
    if (isOwnProcessOrAncestor(pid))
        return;
    if (machine.isEmpty() || !askToEnd(pid))
        display.askToClose(window);
}

} // namespace platform
