#pragma once

#include "platform/processes.h"

#include <QByteArray>

namespace platform {

/// Windows of other programs on an X11 display, through the conventions of the Extended Window
/// Manager Hints (version 1.5) where a manager follows them, and by plain X11 requests where none
/// is running. Each call opens a connection of its own.
class X11Windows : public WindowActivator {
public:
    /// `display` as in the variable DISPLAY, which is used when it is empty.
    explicit X11Windows(QByteArray display = {}) : display_(std::move(display)) {}

    /// A window belongs to a program when its class or instance name (WM_CLASS) is the program's
    /// file name with or without its suffix; Wine names windows so. Titles are not looked at: a
    /// file manager or a terminal may well have the program's name in its own.
    bool activate(qint64 pid, const QString& programName) override;

private:
    QByteArray display_;
};

} // namespace platform
