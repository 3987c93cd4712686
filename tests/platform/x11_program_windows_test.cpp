#include "platform/posix/process_family.h"
#include "platform/x11/x11_program_windows.h"
#include "support/files.h"
#include "support/x11_session.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <unistd.h>
#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

using platform::X11ProgramWindows;
using test_support::eventually;
using test_support::X11Session;

namespace {

enum class End { None, Signal, Close };

End endOf(const QProcess& process) {
    if (process.state() != QProcess::NotRunning)
        return End::None;
    return process.exitStatus() == QProcess::CrashExit ? End::Signal : End::Close;
}

/// A property that a window is made to have: its name, format and value. Without the last two it
/// is made not to have it.
using Property = QStringList;

void change(const X11Session& session, quint64 window, const Property& property) {
    const QStringList id = {"-id", QString::number(window)};
    session.xprop(property.size() == 1 ? id + QStringList{"-remove", property[0]}
                                       : id + QStringList{"-f", property[0], property[1], "-set",
                                                          property[0], property[2]});
}

Property pid(qint64 number) {
    return {"_NET_WM_PID", "32c", QString::number(number)};
}

/// Has the display say that a manager runs, by `window` as the one that it shows itself by: on the
/// root window and on this one.
void nameManager(const QByteArray& display, xcb_window_t window) {
    xcb_connection_t* connection = xcb_connect(display.constData(), nullptr);
    const QByteArray name = "_NET_SUPPORTING_WM_CHECK";
    auto* check = xcb_intern_atom_reply(
        connection,
        xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.constData()),
        nullptr);
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    for (const xcb_window_t shown : {root, window})
        EXPECT_EQ(xcb_request_check(connection, xcb_change_property_checked(
                                                    connection, XCB_PROP_MODE_REPLACE, shown,
                                                    check->atom, XCB_ATOM_WINDOW, 32, 1, &window)),
                  nullptr);
    std::free(check);
    xcb_disconnect(connection);
}

} // namespace

TEST(X11ProgramWindows, endOwnersOnThisMachineAndCloseWindowsWithoutOne) {
    const Property noPid{"_NET_WM_PID"}, elsewhere{"WM_CLIENT_MACHINE", "8s", "elsewhere"};
    const struct {
        QString title;
        QList<Property> properties;
        End end;
    } rows[] = {{"Mouvement d’un projectile", {}, End::Signal},
                {"of this process", {pid(getpid())}, End::None},
                {"of another machine", {elsewhere}, End::None},
                {"of another machine, without an owner", {elsewhere, noPid}, End::None},
                {"without an owner", {noPid}, End::Close},
                {"without a machine", {{"WM_CLIENT_MACHINE"}}, End::Close},
                {"with the number of no process", {pid(2147483647)}, End::Close},
                {"with a number that would be negative", {pid(2147483649)}, End::Close},
                {"cannot be closed", {noPid, {"WM_PROTOCOLS"}}, End::None},
                {"deaf", {}, End::None}};
    const X11Session session(X11Session::Manager::Openbox);
    X11ProgramWindows windows(session.display());
    qputenv("DISPLAY", session.display());
    std::vector<std::unique_ptr<QProcess>> programs;
    for (const auto& row : rows) {
        programs.push_back(std::make_unique<QProcess>());
        programs.back()->start(PLAIN_WINDOW, {"-platform", "xcb", row.title, row.title});
        ASSERT_TRUE(eventually([&] { return windows.list().size() == programs.size(); }));
        for (const Property& property : row.properties)
            change(session, windows.list().back().id, property);
        EXPECT_EQ(windows.list().back().title, row.title);
    }
    for (const platform::ProgramWindow& window : windows.list())
        windows.postQuit(window.id);
    for (std::size_t i = 0; i < programs.size(); ++i) {
        if (rows[i].end != End::None)
            programs[i]->waitForFinished();
        EXPECT_EQ(endOf(*programs[i]), rows[i].end) << qPrintable(rows[i].title);
    }
    for (const auto& program : programs) {
        program->kill();
        program->waitForFinished();
    }
    windows.postQuit(4711); // no window at all
}

TEST(X11ProgramWindows, tellTheProgramsOfWindows) {
    const X11Session session(X11Session::Manager::Openbox);
    const X11ProgramWindows windows(session.display());
    qputenv("DISPLAY", session.display());
    const QTemporaryDir course, wine, prefix;
    const QString loader = wine.filePath("wine64-preloader");
    ASSERT_TRUE(QFile::copy(PLAIN_WINDOW, loader));
    ASSERT_TRUE(QFile::copy(PLAIN_WINDOW, course.filePath("Simu23.exe")));
    ASSERT_TRUE(QDir(prefix.path()).mkpath("dosdevices"));
    ASSERT_TRUE(QFile::link(course.path(), prefix.filePath("dosdevices/d:")));
    qputenv("WINEPREFIX", prefix.path().toLocal8Bit());
    const struct {
        QString file;
        QString firstWord; ///< of the command line, as Wine changes it
        QString program;
    } rows[] = {
        {course.filePath("Simu23.exe"), "simu", course.filePath("Simu23.exe")},
        {loader, "D:\\Simu23.exe", course.filePath("Simu23.exe")},
        {loader, course.filePath("Simu23.exe"), course.filePath("Simu23.exe")},
        {loader, "Simu23.exe", course.filePath("Simu23.exe")}, // in its directory
        {loader, "E:\\Simu23.exe", ""},
    };
    for (const auto& row : rows) {
        QProcess program;
        program.setWorkingDirectory(course.path());
        program.start(
            "bash", {"-c", "exec -a \"$1\" \"$0\" -platform xcb fenêtre", row.file, row.firstWord});
        ASSERT_TRUE(eventually([&] { return windows.list().size() == 1; }));
        const auto owner = windows.owner(windows.list().front().id);
        EXPECT_EQ(owner.pid, program.processId());
        EXPECT_EQ(QFileInfo(owner.program).canonicalFilePath(),
                  row.program.isEmpty() ? "" : QFileInfo(row.program).canonicalFilePath())
            << qPrintable(row.firstWord);
        change(session, windows.list().front().id, {"WM_CLIENT_MACHINE", "8s", "elsewhere"});
        EXPECT_EQ(windows.owner(windows.list().front().id).pid, 0);
        program.kill();
        program.waitForFinished();
        ASSERT_TRUE(eventually([&] { return windows.list().empty(); }));
    }
    qunsetenv("WINEPREFIX");
    EXPECT_EQ(windows.owner(4711).pid, 0);
}

TEST(X11ProgramWindows, tellDialogsOfAnotherWindow) {
    const X11Session session(X11Session::Manager::Openbox);
    const X11ProgramWindows windows(session.display());
    qputenv("DISPLAY", session.display());
    QProcess program;
    program.start(PLAIN_WINDOW, {"-platform", "xcb", "Optique", "dialogs"});
    ASSERT_TRUE(eventually([&] { return windows.list().size() == 2; }));
    // Without a window before which it could stand, a dialog is its program's main window.
    for (const platform::ProgramWindow& window : windows.list())
        EXPECT_EQ(window.hasParent, window.title != "Optique");
    program.kill();
    program.waitForFinished();
}

TEST(X11ProgramWindows, areSeenWhereTheManagerKeepsNoList) {
    const X11Session session(X11Session::Manager::None);
    const X11ProgramWindows windows(session.display());
    qputenv("DISPLAY", session.display());
    QProcess program;
    program.start(PLAIN_WINDOW, {"-platform", "xcb", "Optique"});
    ASSERT_TRUE(eventually([&] { return windows.list().size() == 1; }));
    nameManager(session.display(), static_cast<xcb_window_t>(windows.list().front().id));
    ASSERT_EQ(windows.list().size(), 1U);
    EXPECT_EQ(windows.list().front().title, "Optique");
    program.kill();
    program.waitForFinished();
}

TEST(X11ProgramWindows, areNoneWithoutADisplay) {
    X11ProgramWindows windows(":4711");
    EXPECT_TRUE(windows.list().empty());
    windows.postQuit(1);
}

TEST(ProcessFamily, goesUpAndNotDown) {
    QProcess child;
    child.start("sleep", {"60"});
    ASSERT_TRUE(child.waitForStarted());
    for (const qint64 member : {getpid(), getppid(), 1})
        EXPECT_TRUE(platform::isOwnProcessOrAncestor(member)) << member;
    EXPECT_FALSE(platform::isOwnProcessOrAncestor(child.processId()));
    EXPECT_FALSE(platform::isOwnProcessOrAncestor(0));
    child.kill();
    child.waitForFinished();
}
