#include "platform/qt/qt_processes.h"
#include "platform/x11/x11_windows.h"
#include "support/files.h"
#include "support/x11_session.h"

#include <QTemporaryDir>

#include <xcb/xcb.h>

#include <cstdlib>

using test_support::eventually;
using test_support::X11Session;

namespace {

/// A display, and programs with a window each on it.
class X11WindowsTest : public testing::Test {
protected:
    void begin(X11Session::Manager manager) { session_.emplace(manager); }

    /// Starts a program `name` that shows a window; `command` runs $WINDOW.
    qint64 startProgram(const QString& name, const QByteArray& command) {
        test_support::writeProgram(directory_.filePath(name),
                                   "#!/bin/sh\n"
                                   "export QT_QPA_PLATFORM=xcb DISPLAY=" +
                                       session_->display() + " WINDOW='" PLAIN_WINDOW "'\n" +
                                       command + '\n');
        return platform::QtProcesses().start(directory_.filePath(name)).pid.value_or(0);
    }

    bool activates(qint64 pid, const QString& name) {
        return eventually(
            [&] { return platform::X11Windows(session_->display()).activate(pid, name); });
    }

    /// What the window that the manager calls active has in its property `name`.
    QByteArray activeProperty(const QString& name) const {
        const QByteArray active = session_->xprop({"-root", "_NET_ACTIVE_WINDOW"});
        const qsizetype id = active.indexOf("0x");
        return id < 0 ? QByteArray() : propertyOf(active.mid(id).trimmed(), name);
    }

    QByteArray propertyOf(const QByteArray& window, const QString& name) const {
        return session_->xprop({"-id", QString::fromLatin1(window), name}).trimmed();
    }

    std::optional<X11Session> session_;
    QTemporaryDir directory_;
};

QByteArray pidProperty(qint64 pid) {
    return "_NET_WM_PID(CARDINAL) = " + QByteArray::number(pid);
}

/// The window that has the keyboard, as the display itself tells.
QByteArray focusedWindow(const QByteArray& display) {
    xcb_connection_t* connection = xcb_connect(display.constData(), nullptr);
    auto* reply = xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr);
    const QByteArray id = "0x" + QByteArray::number(reply ? reply->focus : 0, 16);
    std::free(reply);
    xcb_disconnect(connection);
    return id;
}

} // namespace

TEST_F(X11WindowsTest, bringsAProcessToTheFrontByItsIdentifier) {
    begin(X11Session::Manager::Openbox);
    const qint64 first = startProgram("simu21.exe", "exec \"$WINDOW\"");
    ASSERT_TRUE(activates(first, "Simu21.exe"));
    const qint64 second = startProgram("simu22.exe", "exec \"$WINDOW\"");
    for (const qint64 pid : {second, first, second}) {
        ASSERT_TRUE(activates(pid, "other.exe"));
        EXPECT_TRUE(eventually([&] { return activeProperty("_NET_WM_PID") == pidProperty(pid); }));
    }
}

TEST_F(X11WindowsTest, findsAWindowOfAnotherProcessByItsProgramName) {
    begin(X11Session::Manager::Openbox);
    // The process started is not the one with the window, as with Wine.
    const qint64 outer = startProgram("Simu23.exe", "\"$WINDOW\" -name simu23.exe & wait");
    ASSERT_TRUE(activates(outer, "SIMU23.EXE"));
    const qint64 other = startProgram("simu21.exe", "exec \"$WINDOW\"");
    ASSERT_TRUE(activates(other, ""));
    ASSERT_TRUE(eventually([&] { return activeProperty("_NET_WM_PID") == pidProperty(other); }));

    EXPECT_TRUE(activates(outer, "SIMU23.EXE"));
    EXPECT_TRUE(eventually([&] { return activeProperty("WM_CLASS").contains("simu23.exe"); }));
    EXPECT_FALSE(platform::X11Windows(session_->display()).activate(0, "SIMU2.EXE"));
}

TEST_F(X11WindowsTest, givesTheKeyboardToAWindowWhereNoManagerRuns) {
    begin(X11Session::Manager::None);
    const qint64 first = startProgram("simu21.exe", "exec \"$WINDOW\"");
    const qint64 second = startProgram("simu22.exe", "exec \"$WINDOW\"");
    for (const qint64 pid : {first, second, first}) {
        ASSERT_TRUE(activates(pid, ""));
        EXPECT_TRUE(eventually([&] {
            return propertyOf(focusedWindow(session_->display()), "_NET_WM_PID") ==
                   pidProperty(pid);
        }));
    }
}

TEST(X11Windows, isSilentWithoutADisplay) {
    EXPECT_FALSE(platform::X11Windows(":4711").activate(1, "simu21.exe"));
    EXPECT_FALSE(platform::X11Windows("nonsense").activate(1, "simu21.exe"));
}
