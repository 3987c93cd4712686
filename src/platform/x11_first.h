#pragma once

namespace platform {

/// While it lives, Qt's next application object shows its windows through X11 where a Wayland
/// desktop has that too (XWayland), and natively where it has not, or where X11 cannot be reached.
/// A native window cannot be placed, brought to the front or found by its title
/// (docs/decisions/0025-windows-through-x11.md). Whoever chooses by QT_QPA_PLATFORM or `-platform`
/// has it so. Programs that are started after its end know nothing of it.
class X11First {
public:
    X11First();
    ~X11First();

    X11First(const X11First&) = delete;
    X11First& operator=(const X11First&) = delete;

private:
    bool chosen_ = false;
};

} // namespace platform
