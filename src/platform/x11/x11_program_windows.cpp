#include "platform/x11/x11_program_windows.h"

#include "platform/posix/process_family.h"
#include "platform/posix/process_program.h"
#include "platform/x11/x11_display.h"

#include <QSysInfo>

#include <algorithm>

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
    const std::vector<xcb_window_t> all = display.programWindows();
    std::vector<ProgramWindow> windows;
    for (const xcb_window_t window : all) {
        const bool hasParent =
            std::find(all.begin(), all.end(), display.transientFor(window)) != all.end();
        windows.push_back({window, display.title(window), hasParent});
    }
    return windows;
}

WindowOwner X11ProgramWindows::owner(quint64 id) const {
    const X11Display display(display_);
    if (!display.isOpen())
        return {};
    const auto window = static_cast<xcb_window_t>(id);
    // Whoever says no machine may mean any.
    if (!isThisMachine(display.clientMachine(window)))
        return {};
    const qint64 pid = display.processId(window);
    return {pid, programOfProcess(pid)};
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
