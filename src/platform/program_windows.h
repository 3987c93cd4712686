#pragma once

#include <QString>

#include <vector>

namespace platform {

/// A top-level window of some program, as it was when the list was read.
struct ProgramWindow {
    quint64 id = 0; ///< the window system's own number
    QString title;  ///< empty for a window without one
    /// Whether it belongs to another window of the list, as dialogs do.
    bool hasParent = false;
};

/// The process that a window belongs to, by what the window says.
struct WindowOwner {
    /// 0 when the window names no process, or one of another machine.
    qint64 pid = 0;
    /// Path of the file of its program; of one that runs through Wine, that of the Windows program.
    /// Empty when it cannot be told, as of a process of another person's.
    QString program;
};

/// Looks at the windows of all programs, ours among them, and asks programs to end. A window may
/// vanish at any time; what is then asked of it has no effect.
class ProgramWindows {
public:
    virtual ~ProgramWindows() = default;

    /// The windows from the first to the last in the system's own order, read anew at every call.
    /// Empty where there is no window system to ask.
    virtual std::vector<ProgramWindow> list() const = 0;

    /// Whose the window `id` of the list is.
    virtual WindowOwner owner(quint64 id) const = 0;

    /// Asks the program that owns the window `id` of the list to leave its message loop, without
    /// the questions that closing a window may bring, and does not wait for it. The program can
    /// still put its things in order, or pay no heed. Has no effect on our own process.
    virtual void postQuit(quint64 id) = 0;
};

} // namespace platform
