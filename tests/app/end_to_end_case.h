#pragma once

#include "support/files.h"
#include "support/x11_session.h"

#include <QDir>
#include <QProcess>
#include <QRect>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace app::test {

using test_support::eventually;
using test_support::X11Session;

/// The real program on the real demonstration course, on a display with a window manager.
class EndToEnd : public testing::Test {
protected:
    explicit EndToEnd(QSize screen = {1024, 768},
                      X11Session::Manager manager = X11Session::Manager::Openbox)
        : session_(manager, screen) {}

    void SetUp() override {
        ASSERT_FALSE(session_.display().isEmpty()) << "Xvfb is missing";
        ASSERT_TRUE(QDir().mkpath(home()));
        ASSERT_EQ(QProcess::execute(ORVALENTE_COURS, {"build", sources(), "-o", course()}), 0);
    }

    /// Directory of the sources of the course.
    virtual QString sources() { return COURSE_SOURCES; }

    ~EndToEnd() override {
        shell_.kill();
        shell_.waitForFinished();
    }

    /// The home of who sits before the program.
    QString home() const { return directory_.filePath("home"); }
    QString course() const { return directory_.filePath("cours"); }

    /// Of all programs that are started.
    virtual QProcessEnvironment environment() const {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("DISPLAY", QString::fromLatin1(session_.display()));
        environment.insert("QT_QPA_PLATFORM", "xcb");
        environment.insert("XDG_RUNTIME_DIR", directory_.path());
        environment.insert("HOME", home());
        environment.insert("CUPS_SERVER", home()); // no printers: the program's own dialog opens
        for (const char* kept : {"CONFIG", "DATA", "STATE"}) // below the home then
            environment.remove(QStringLiteral("XDG_%1_HOME").arg(QLatin1String(kept)));
        return environment;
    }

    /// Starts the shell and waits for its window.
    void start(const QStringList& arguments = {}) {
        shell_.setProcessEnvironment(environment());
        shell_.start(ORVALENTE, QStringList{"--course", course()} + arguments);
        ASSERT_TRUE(shell_.waitForStarted());
        ASSERT_TRUE(eventually([&] { return !window().isEmpty() && !title().isEmpty(); }));
    }

    QByteArray run(const QString& program, const QStringList& arguments) const {
        QProcess process;
        process.setProcessEnvironment(environment());
        process.start(program, arguments);
        process.waitForFinished();
        return process.readAllStandardOutput();
    }

    /// The windows of that name; there is more than one only when something is wrong.
    QStringList windows(const QString& name) const {
        return QString::fromLatin1(
                   run("xdotool", {"search", "--all", "--onlyvisible", "--pid",
                                   QString::number(shell_.processId()), "--name", name}))
            .split(u'\n', Qt::SkipEmptyParts);
    }

    QString window(const QString& name = "Orvalente") const { return windows(name).value(0); }

    QString title() const {
        return QString::fromUtf8(run("xdotool", {"getwindowname", window()})).trimmed();
    }

    QString activeTitle() const {
        return QString::fromUtf8(run("xdotool", {"getactivewindow", "getwindowname"})).trimmed();
    }

    /// Left, top, width and height as the display tells.
    QRect place(const QString& name = "Orvalente") const {
        const QString shown = QString::fromLatin1(run("xwininfo", {"-id", window(name)}));
        const auto number = [&](const char* label) {
            const QRegularExpression pattern(QString::fromLatin1(label) + ":\\s*(-?\\d+)");
            return pattern.match(shown).captured(1).toInt();
        };
        return {number("Absolute upper-left X"), number("Absolute upper-left Y"), number("Width"),
                number("Height")};
    }

    void press(const QString& key) { run("xdotool", {"key", "--clearmodifiers", key}); }

    void movePointer(int x, int y, const QString& name = "Orvalente") {
        const QPoint corner = place(name).topLeft();
        run("xdotool",
            {"mousemove", QString::number(corner.x() + x), QString::number(corner.y() + y)});
    }

    void click(int x, int y, const QString& name = "Orvalente", int times = 1) {
        movePointer(x, y, name);
        run("xdotool", {"click", "--delay", "50", "--repeat", QString::number(times), "1"});
    }

    X11Session session_;
    QTemporaryDir directory_;
    QProcess shell_;
};

} // namespace app::test
