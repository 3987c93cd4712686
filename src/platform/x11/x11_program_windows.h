#pragma once

#include "platform/program_windows.h"

#include <QByteArray>

namespace platform {

/// The windows of all programs on an X11 display. Each call opens a connection of its own.
///
/// X11 has no message that ends a program, so that postQuit() sends the owner SIGTERM. The owner is
/// what the window says (_NET_WM_PID, Extended Window Manager Hints 1.5), which counts only when it
/// also says that it comes from this machine (WM_CLIENT_MACHINE). A window that names no process of
/// this machine is asked to close (WM_DELETE_WINDOW), if it understands that. Windows of programs
/// on other machines are left alone, whoever started those did not start them here. No window is
/// ever torn down from outside, and neither this process nor one it descends from is asked
/// anything.
class X11ProgramWindows : public ProgramWindows {
public:
    /// `display` as in the variable DISPLAY, which is used when it is empty.
    explicit X11ProgramWindows(QByteArray display = {}) : display_(std::move(display)) {}

    std::vector<ProgramWindow> list() const override;
    WindowOwner owner(quint64 id) const override;
    void postQuit(quint64 id) override;

private:
    QByteArray display_;
};

} // namespace platform
