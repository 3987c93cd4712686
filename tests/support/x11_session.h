#pragma once

#include <QByteArray>
#include <QProcess>
#include <QSize>
#include <QTemporaryDir>

namespace test_support {

/// A display of its own: an X server without a screen and, when asked for, a window manager. Both
/// end with the object, and so do the programs shown there.
class X11Session {
public:
    enum class Manager { None, Openbox };

    explicit X11Session(Manager manager, QSize screen = {1024, 768});
    ~X11Session();

    /// For the variable DISPLAY; empty when the server did not start.
    const QByteArray& display() const { return display_; }

    /// What `xprop` prints about `arguments` ("-root", "_NET_ACTIVE_WINDOW") on this display.
    QByteArray xprop(const QStringList& arguments) const;

private:
    QProcessEnvironment environment() const;
    void startManager();

    QTemporaryDir home_;
    QProcess server_;
    QProcess manager_;
    QByteArray display_;
};

} // namespace test_support
