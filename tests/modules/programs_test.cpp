// The real programs on a display with a window manager, started by the shell's own launcher.

#include "platform/qt/qt_processes.h"
#include "shell/fake_reports.h"
#include "shell/launcher.h"
#include "shell/raw_status_file.h"
#include "support/fake_message_boxes.h"
#include "support/fake_processes.h"
#include "support/x11_session.h"

#include <QRegularExpression>
#include <QTemporaryDir>

#include <csignal>

using test_support::eventually;
using test_support::X11Session;

namespace {

class Programs : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_FALSE(session_.display().isEmpty()) << "Xvfb is missing";
        for (const auto& [name, value] : environment())
            qputenv(name, value);
        ASSERT_TRUE(QFile::copy(MODULE_23, directory_.filePath("Simu23.exe")));
        ASSERT_TRUE(QFile::copy(MODULE_02, directory_.filePath("Simu21.exe")));
        ASSERT_TRUE(QFile::copy(MODULE_10, directory_.filePath("Simu22.exe")));
        ASSERT_TRUE(QFile::copy(MODULE_07, directory_.filePath("SIMU07.EXE")));
        ASSERT_TRUE(QFile::copy(PROJECTILE_EXERCISES "/Exercice 05.E21",
                                directory_.filePath("Exercice 05.E21")));
        raw_status_file::writeAllNon(directory_.path());
        state_.InstallDir = directory_.path() + '/';
        state_.StatusFilePath = directory_.filePath(raw_status_file::kName);
    }
    ~Programs() override {
        for (const int module : {2, 7, 10, 23}) {
            if (pid(module) > 0)
                kill(pid(module), SIGKILL);
        }
        for (const auto& [name, value] : environment())
            qputenv(name, before_.value(name));
    }

    QList<std::pair<const char*, QByteArray>> environment() const {
        return {{"DISPLAY", session_.display()},
                {"QT_QPA_PLATFORM", "xcb"},
                {"XDG_RUNTIME_DIR", directory_.path().toLocal8Bit()}};
    }

    std::int32_t pid(int module) { return *state_.SiblingProcessIds.slot(module); }
    QByteArray record(int number) const {
        return raw_status_file::characters(directory_.path(), number);
    }
    /// Titles of all windows, and whose they are.
    QByteArray windows() const {
        QByteArray all;
        const QByteArray list = session_.xprop({"-root", "_NET_CLIENT_LIST"});
        static const QRegularExpression id("0x[0-9a-f]+");
        auto match = id.globalMatch(QString::fromLatin1(list));
        while (match.hasNext())
            all += session_.xprop({"-id", match.next().captured(), "_NET_WM_NAME", "_NET_WM_PID"});
        return all;
    }
    bool shows(const char* title, int module) {
        return eventually([&] {
            const QByteArray all = windows();
            return all.contains(title) && all.contains("= " + QByteArray::number(pid(module)));
        });
    }

    QHash<QByteArray, QByteArray> before_{{"DISPLAY", qgetenv("DISPLAY")},
                                          {"QT_QPA_PLATFORM", qgetenv("QT_QPA_PLATFORM")},
                                          {"XDG_RUNTIME_DIR", qgetenv("XDG_RUNTIME_DIR")}};
    X11Session session_{X11Session::Manager::Openbox};
    QTemporaryDir directory_;
    shell::SharedState state_;
    test_support::FakeMessageBoxes messageBoxes_;
    platform::QtProcesses starter_;
    test_support::FakeActivator activator_;
    FakeReports reports_;
    shell::Launcher launcher_{state_, messageBoxes_, starter_, activator_, reports_};
};

} // namespace

TEST_F(Programs, areStartedByTheShellAndEndWhenAsked) {
    for (const auto& [code, module, title] : {std::tuple(235, 23, "- Orvalente, module 23"),
                                              std::tuple(21, 2, "- Orvalente, module 02"),
                                              std::tuple(105, 10, "- Orvalente, module 10"),
                                              std::tuple(70, 7, "- Orvalente, module 07")}) {
        launcher_.launchModule(static_cast<std::int16_t>(code));
        EXPECT_TRUE(shows(title, module)) << windows().constData();
        EXPECT_EQ(record(module), "OUI");
        launcher_.launchModule(static_cast<std::int16_t>(code)); // to the front, not again
        EXPECT_EQ(activator_.requests.back().first, pid(module));
        kill(pid(module), SIGTERM);
        EXPECT_TRUE(eventually([&] { return record(module) == "NON"; }));
    }
    EXPECT_TRUE(reports_.lines.isEmpty());
}

TEST_F(Programs, endWithGoodStatusHoweverTheyAreAsked) {
    for (const int signal : {SIGTERM, SIGINT, SIGHUP, 0}) {
        QProcess program;
        program.start(directory_.filePath("Simu23.exe"), {});
        ASSERT_TRUE(eventually([&] { return windows().contains("module 23"); }));
        EXPECT_EQ(record(23), "OUI");
        if (signal != 0)
            kill(static_cast<pid_t>(program.processId()), signal);
        // The window manager may still be busy with the window's coming.
        EXPECT_TRUE(eventually([&] {
            if (signal == 0)
                QProcess::execute("xdotool", {"key", "--clearmodifiers", "alt+F4"});
            return program.waitForFinished(100);
        })) << signal;
        EXPECT_EQ(program.exitStatus(), QProcess::NormalExit) << signal;
        EXPECT_EQ(program.exitCode(), 0) << signal;
        EXPECT_EQ(record(23), "NON") << signal;
        ASSERT_TRUE(eventually([&] { return !windows().contains("module 23"); }));
    }
}
