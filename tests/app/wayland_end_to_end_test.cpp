// The real program on a Wayland desktop.

#include "app/end_to_end_case.h"
#include "shell/raw_status_file.h"

#include <QLibraryInfo>
#include <QStandardPaths>

namespace app::test {
namespace {

/// Weston in a window that fills the test's display: pointer and keyboard reach it from there.
class WaylandDesktop : public EndToEnd {
protected:
    static constexpr QSize kScreen{1400, 1000};

    WaylandDesktop() : EndToEnd(kScreen, X11Session::Manager::None) {}

    ~WaylandDesktop() override {
        shell_.kill();
        shell_.waitForFinished();
        weston_.terminate();
        weston_.waitForFinished();
    }

    void SetUp() override {
        for (const char* program : {"weston", "Xwayland"})
            if (QStandardPaths::findExecutable(program).isEmpty())
                GTEST_SKIP() << program << " is not installed: nothing was tried on Wayland";
        EndToEnd::SetUp();
        startWeston();
    }

    /// Of what runs on the Wayland desktop; `outside` is the display that this one stands on.
    QProcessEnvironment environment() const override {
        QProcessEnvironment environment = EndToEnd::environment();
        environment.remove("QT_QPA_PLATFORM");
        environment.insert("XDG_SESSION_TYPE", "wayland");
        environment.insert("WAYLAND_DISPLAY", kSocket);
        environment.insert("DISPLAY", x11_);
        return environment;
    }

    /// Moves and presses what stands on the test's display.
    void outside(const QStringList& arguments) {
        QProcess xdotool;
        xdotool.setProcessEnvironment(EndToEnd::environment());
        xdotool.start("xdotool", arguments);
        xdotool.waitForFinished();
    }

    /// A click on a place of the main window, once the desktop has followed the pointer there.
    void clickThere(int x, int y) {
        const QPoint place = this->place().topLeft() + QPoint(x, y);
        const QByteArray there =
            QStringLiteral("x:%1 y:%2 ").arg(place.x()).arg(place.y()).toLatin1();
        ASSERT_TRUE(eventually([&] {
            outside({"mousemove", "0", "0", "mousemove", QString::number(place.x()),
                     QString::number(place.y())});
            return run("xdotool", {"getmouselocation"}).startsWith(there);
        }));
        outside({"click", "1"});
    }

    /// The plugin by which the process `pid` shows its windows.
    static QByteArray windowSystem(qint64 pid) {
        const QByteArray maps = test_support::readFile(QStringLiteral("/proc/%1/maps").arg(pid));
        return maps.contains("libqwayland-") ? "wayland" : maps.contains("libqxcb.") ? "xcb" : "";
    }

    static inline const QString kSocket = QStringLiteral("essai");

private:
    void startWeston() {
        QProcessEnvironment environment = EndToEnd::environment();
        weston_.setProcessEnvironment(environment);
        weston_.setProcessChannelMode(QProcess::MergedChannels);
        weston_.start("weston", {"--no-config", "--backend=x11-backend.so", "--use-pixman",
                                 "--xwayland", "--idle-time=0", "--socket=" + kSocket,
                                 QStringLiteral("--width=%1").arg(kScreen.width()),
                                 QStringLiteral("--height=%1").arg(kScreen.height())});
        QByteArray said;
        static const QRegularExpression pattern("xserver listening on display (:\\d+)");
        ASSERT_TRUE(eventually([&] {
            weston_.waitForReadyRead(100);
            said += weston_.readAll();
            x11_ = pattern.match(QString::fromLatin1(said)).captured(1);
            return !x11_.isEmpty();
        })) << said.data();
    }

    QProcess weston_;
    QString x11_; ///< the display that Weston has for programs of X11
};

TEST_F(WaylandDesktop, standsInTheMiddleAndClosesItsModulesThroughX11) {
    ASSERT_TRUE(QFile::copy(QStringLiteral(LINKS_MODULE), course() + "/SIMU07.EXE"));
    start();
    EXPECT_EQ(windowSystem(shell_.processId()), "xcb");
    // The desktop's frame takes its part.
    const QPoint corner((kScreen.width() - 800) / 2, (kScreen.height() - 600) / 2);
    EXPECT_TRUE(eventually([&] { return (place().topLeft() - corner).manhattanLength() < 60; }))
        << place().x() << ' ' << place().y();

    clickThere(456, 32); // Command12
    const auto module = [&] {
        return run("xdotool", {"search", "--onlyvisible", "--name", "module 07"}).trimmed();
    };
    ASSERT_TRUE(eventually([&] { return !module().isEmpty(); }));
    const qint64 pid = run("xdotool", {"getwindowpid", module()}).trimmed().toLongLong();
    EXPECT_EQ(windowSystem(pid), "xcb");
    // What was said to Qt is nothing to those whom we start.
    EXPECT_FALSE(test_support::readFile(QStringLiteral("/proc/%1/environ").arg(pid))
                     .contains("QT_QPA_PLATFORM"));
    EXPECT_EQ(raw_status_file::characters(course(), 7), "OUI");

    clickThere(400, 560); // the window's own ground: it has the keyboard then
    outside({"key", "alt+q"});
    ASSERT_TRUE(eventually([&] { return !window("Quitter").isEmpty(); }));
    outside({"key", "Return"});
    EXPECT_TRUE(shell_.waitForFinished(30'000));
    EXPECT_TRUE(eventually([&] { return module().isEmpty(); }));
    EXPECT_TRUE(eventually([&] { return raw_status_file::characters(course(), 7) == "NON"; }));
}

TEST_F(WaylandDesktop, isShownNativelyWithoutX11OrWhenAskedTo) {
    const QString plugins = QLibraryInfo::path(QLibraryInfo::PluginsPath);
    if (!QFile::exists(plugins + "/platforms/libqwayland-generic.so"))
        GTEST_SKIP() << "qt6-wayland is not installed: nothing was shown natively";
    const QString x11 = environment().value("DISPLAY");
    const struct { QString display, chosen; } rows[] = {{"", ""}, {":4711", ""}, {x11, "wayland"}};
    for (const auto& row : rows) {
        QProcessEnvironment variables = environment();
        variables.insert("DISPLAY", row.display);
        if (!row.chosen.isEmpty())
            variables.insert("QT_QPA_PLATFORM", row.chosen);
        for (const QString& program : {QStringLiteral(ORVALENTE), QStringLiteral(LINKS_MODULE)}) {
            QProcess shown;
            shown.setProcessEnvironment(variables);
            shown.start(program,
                        program == ORVALENTE ? QStringList{"--course", course()} : QStringList());
            EXPECT_TRUE(eventually([&] { return windowSystem(shown.processId()) == "wayland"; }))
                << qPrintable(program) << " on " << qPrintable(row.display);
            EXPECT_FALSE(shown.waitForFinished(500)) << shown.readAllStandardError().data();
            shown.kill();
            shown.waitForFinished();
        }
    }
}

} // namespace
} // namespace app::test
