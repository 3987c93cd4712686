#include "platform/posix/process_family.h"
#include "platform/x11/x11_program_windows.h"
#include "support/files.h"
#include "support/module_window.h"
#include "support/x11_session.h"

#include <unistd.h>

#include <memory>

using platform::X11ProgramWindows;
using test_support::eventually;
using test_support::ModuleWindow;
using test_support::X11Session;

namespace {

enum class End { None, Signal, Close };

End endOf(const QProcess& process) {
    if (process.state() != QProcess::NotRunning)
        return End::None;
    return process.exitStatus() == QProcess::CrashExit ? End::Signal : End::Close;
}

} // namespace

TEST(X11ProgramWindows, EndOwnersOnThisMachineAndCloseWindowsWithoutOne) {
    const struct {
        const char* title;
        QStringList says;
        End end;
    } rows[] = {
        {"Mouvement d’un projectile", {}, End::Signal},
        {"of this process", {"pid=" + QString::number(getpid())}, End::None},
        {"of another machine", {"host=elsewhere"}, End::None},
        {"of another machine, without an owner", {"host=elsewhere", "pid=none"}, End::None},
        {"without an owner", {"pid=none"}, End::Close},
        {"without a machine", {"host=none"}, End::Close},
        {"with the number of no process", {"pid=2147483647"}, End::Close},
        {"with a number that would be negative", {"pid=2147483649"}, End::Close},
        {"without an owner, and cannot be closed", {"pid=none", "stays=1"}, End::None},
        {"pays no heed", {"stays=1"}, End::None},
        {"the last", {"parent=1"}, End::Signal},
    };
    const X11Session session(X11Session::Manager::Openbox);
    X11ProgramWindows windows(session.display());
    std::vector<std::unique_ptr<ModuleWindow>> programs;
    for (const auto& row : rows) {
        programs.push_back(std::make_unique<ModuleWindow>(
            session.display(), QStringList{"title=" + QString(row.title)} + row.says));
        ASSERT_TRUE(eventually([&] { return windows.list().size() == programs.size(); }));
        EXPECT_EQ(windows.list().back().title, row.title);
        EXPECT_EQ(windows.list().back().hasParent, row.says.contains("parent=1"));
    }
    for (const platform::ProgramWindow& window : windows.list())
        windows.postQuit(window.id);
    for (std::size_t i = 0; i < programs.size(); ++i) {
        if (rows[i].end != End::None)
            programs[i]->waitForFinished();
    }
    for (std::size_t i = 0; i < programs.size(); ++i)
        EXPECT_EQ(endOf(*programs[i]), rows[i].end) << rows[i].title;
    windows.postQuit(windows.list().front().id + 4711); // no window at all
}

TEST(X11ProgramWindows, AreNoneWithoutADisplay) {
    X11ProgramWindows windows(":4711");
    EXPECT_TRUE(windows.list().empty());
    windows.postQuit(1);
}

TEST(ProcessFamily, GoesUpAndNotDown) {
    QProcess child;
    child.start("sleep", {"60"});
    ASSERT_TRUE(child.waitForStarted());
    EXPECT_TRUE(platform::isOwnProcessOrAncestor(getpid()));
    EXPECT_TRUE(platform::isOwnProcessOrAncestor(getppid()));
    EXPECT_TRUE(platform::isOwnProcessOrAncestor(1));
    EXPECT_FALSE(platform::isOwnProcessOrAncestor(child.processId()));
    EXPECT_FALSE(platform::isOwnProcessOrAncestor(0));
    child.kill();
    child.waitForFinished();
}
