#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QString>

#include <xcb/xcb.h>

#include <cstdint>
#include <memory>
#include <vector>

namespace platform {

/// A short-lived connection to an X11 display, for looking at windows of other programs. A window
/// may vanish at any time: what is asked of it then is empty.
class X11Display {
public:
    /// `name` as in the variable DISPLAY, which is used when it is empty.
    explicit X11Display(const QByteArray& name);

    /// False when there is no such display; nothing else may be called then.
    bool isOpen() const { return root_ != XCB_WINDOW_NONE; }

    /// The windows of all programs, oldest first when a manager tells.
    std::vector<xcb_window_t> programWindows() const;

    /// Process that owns the window; 0 when the window does not say.
    std::uint32_t processId(xcb_window_t window) const;

    /// Instance and class name of the window's program; empty when it does not say.
    QByteArrayList classNames(xcb_window_t window) const;

    /// Name of the machine that the window's program runs on; empty when it does not say.
    QByteArray clientMachine(xcb_window_t window) const;

    /// Title of the window; empty when it has none.
    QString title(xcb_window_t window) const;

    /// The window that this one stands before, as dialogs do; none when it does not say. A dialog
    /// without such a window may name the root or a hidden window of its toolkit.
    xcb_window_t transientFor(xcb_window_t window) const;

    /// Asks the window's program to close it, as the button of its title bar does, and waits until
    /// the display has taken the request. Has no effect on a window that does not know of this.
    void askToClose(xcb_window_t window) const;

    /// Asks for the window to come to the front with the keyboard's focus, and waits until the
    /// display has taken the request.
    void bringToFront(xcb_window_t window) const;

private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };

    xcb_atom_t atom(const char* name) const;
    /// Sends `event` to those who selected `mask` on `target`, with 0 to its program, and waits
    /// until the display has taken it.
    void send(const xcb_client_message_event_t& event, xcb_window_t target,
              std::uint32_t mask) const;
    void waitForDisplay() const;
    QByteArray property(xcb_window_t window, xcb_atom_t name, xcb_atom_t type) const;
    std::vector<std::uint32_t> cardinals(xcb_window_t window, const char* name,
                                         xcb_atom_t type) const;
    bool hasManager() const;
    std::vector<xcb_window_t> children(xcb_window_t parent) const;
    /// Toolkits keep windows of their own that are never shown, or that are menus.
    bool isShown(xcb_window_t window) const;
    std::vector<xcb_window_t> unlistedProgramWindows() const;

    std::unique_ptr<xcb_connection_t, Disconnect> connection_;
    xcb_window_t root_ = XCB_WINDOW_NONE;
};

} // namespace platform
