// The real program beside sibling programs.

#include "app/end_to_end_case.h"
#include "shell/raw_status_file.h"

#include <memory>
#include <vector>

namespace app::test {
namespace {

/// Modules, and other programs, beside the shell when it is left.
class Leaving : public EndToEnd {
protected:
    ~Leaving() override {
        for (const auto& program : programs_) {
            program->kill();
            program->waitForFinished();
        }
    }

    /// Starts another program and waits for its window of that title.
    QProcess& open(const QString& program, const QStringList& arguments, const QString& title) {
        programs_.push_back(std::make_unique<QProcess>());
        programs_.back()->setProcessEnvironment(environment());
        programs_.back()->start(program, arguments);
        // Two shells have the same title; who is too early speaks to the wrong one.
        const auto isThere = [&, pid = QByteArray::number(programs_.back()->processId())] {
            return run("xdotool", {"getactivewindow", "getwindowpid"}).trimmed() == pid &&
                   activeTitle().startsWith(title);
        };
        EXPECT_TRUE(eventually(isThere)) << title.data();
        return *programs_.back();
    }

    /// A program with a window of that title, which stands in the course under that name.
    QProcess& openModule(const QString& file, const QStringList& arguments) {
        EXPECT_TRUE(QFile::copy(PLAIN_WINDOW, course() + u'/' + file));
        return open(course() + u'/' + file, arguments, arguments[0]);
    }

    void leave() {
        // Another shell has a window of the same title.
        ASSERT_TRUE(eventually([&] {
            run("xdotool", {"windowactivate", window("Orvalente - ")});
            return run("xdotool", {"getactivewindow"}).trimmed() ==
                   window("Orvalente - ").toLatin1();
        }));
        press("alt+q");
        ASSERT_TRUE(eventually([&] { return activeTitle() == "Quitter"; }));
        press("Return");
        ASSERT_TRUE(shell_.waitForFinished(30'000));
        EXPECT_EQ(shell_.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(shell_.exitCode(), 0);
    }

    void moduleSays(int module, const QByteArray& word) {
        const QString file = course() + "/TEMPKX.TMP";
        test_support::writeFile(
            file, test_support::readFile(file).replace((module - 1) * 128 + 2, 3, word));
    }

private:
    std::vector<std::unique_ptr<QProcess>> programs_;
};

TEST_F(Leaving, endsTheModulesAndStartsTheCompanionOnceAModuleSaysThatItRuns) {
    test_support::writeProgram(course() + "/terminus.exe", "#!/bin/sh\necho there > trace\n");
    QProcess& projectile =
        openModule("Simu23.exe", {"Mouvement d’un projectile - Orvalente, module 23"});
    QProcess& deaf = openModule("SIMU09.EXE", {"Optique - Orvalente, module 09", "deaf"});
    for (const bool says : {false, true}) {
        start();
        if (says)
            moduleSays(23, "OUI");
        leave();
        EXPECT_EQ(projectile.waitForFinished(says ? 30'000 : 0), says);
        EXPECT_TRUE(eventually([&] { return QFile::remove(course() + "/trace"); }));
    }
    EXPECT_EQ(projectile.exitStatus(), QProcess::CrashExit); // by the signal
    EXPECT_EQ(deaf.state(), QProcess::Running);
}

TEST_F(Leaving, endsNeitherStrangersNorAnotherShellWithItsHelpOpen) {
    QProcess& module = openModule("Simu23.exe", {"Projectile - Orvalente, module 23"});
    const QString document = "Orvalente, module 23.odt - Notes";
    QProcess& stranger = open(PLAIN_WINDOW, {document}, document);
    start();
    QProcess& other = open(ORVALENTE, {"--course", course()}, "Orvalente - ");
    press("alt+a");
    ASSERT_TRUE(eventually([&] { return activeTitle() == "Aide d’Orvalente"; }))
        << activeTitle().data();
    moduleSays(23, "OUI");
    leave();
    EXPECT_TRUE(module.waitForFinished());
    EXPECT_FALSE(other.waitForFinished(1'000));
    EXPECT_EQ(stranger.state(), QProcess::Running);
    EXPECT_EQ(activeTitle().isEmpty(), false);
}

TEST_F(Leaving, letsAnotherShellOnTheSameCourseGoOn) {
    test_support::writeProgram(course() + "/terminus.exe", "#!/bin/sh\necho there > trace\n");
    start();
    QProcess other;
    other.setProcessEnvironment(environment());
    other.start(ORVALENTE, {"--course", course()});
    const auto windowOf = [this](const QProcess& program) {
        return QString::fromLatin1(
                   run("xdotool", {"search", "--all", "--onlyvisible", "--pid",
                                   QString::number(program.processId()), "--name", "Orvalente - "}))
            .section(u'\n', 0, 0);
    };
    const auto titleOf = [&](const QProcess& program) {
        return run("xdotool", {"getwindowname", windowOf(program)});
    };
    const auto turnsThePage = [&](const QProcess& program, const QString& key) {
        const QByteArray before = titleOf(program);
        run("xdotool", {"windowactivate", "--sync", windowOf(program)});
        press(key);
        return eventually([&] { return titleOf(program) != before; });
    };
    ASSERT_TRUE(eventually([&] { return !windowOf(other).isEmpty(); }));
    moduleSays(9, "OUI"); // what a module has written since both have started
    const QByteArray status = raw_status_file::all(course());
    for (const QString key : {"alt+y", "alt+h"}) // Physique, Chimie
        for (const QProcess* program : {&shell_, &other})
            EXPECT_TRUE(turnsThePage(*program, key)) << titleOf(*program).data();
    leave();
    EXPECT_TRUE(eventually([&] { return QFile::exists(course() + "/trace"); }));
    EXPECT_EQ(raw_status_file::all(course()), status) << "leaving writes nothing in it";
    EXPECT_TRUE(turnsThePage(other, "alt+y"));
    // A third start sets it back, whatever runs: meant so.
    start();
    EXPECT_TRUE(eventually([&] { return raw_status_file::characters(course(), 9) == "NON"; }));
    EXPECT_TRUE(turnsThePage(other, "alt+h"));
    other.kill();
    other.waitForFinished();
}

TEST_F(Leaving, goesWithTheModuleThatTheInternetButtonStarted) {
    ASSERT_TRUE(QFile::copy(QStringLiteral(LINKS_MODULE), course() + "/SIMU07.EXE"));
    for (const bool installed : {false, true}) {
        if (installed) // where nobody but the installer writes
            raw_status_file::protect(course());
        start();
        ASSERT_TRUE(eventually([&] { return place().size() == QSize(800, 600); }));
        const QDir own(directory_.filePath("orvalente"));
        EXPECT_EQ(own.exists(), installed);
        const QString folder =
            installed ? own.filePath(own.entryList(QDir::Dirs | QDir::NoDotAndDotDot).value(0))
                      : course();
        const QByteArray before = raw_status_file::all(course());
        const auto says = [&] { return raw_status_file::characters(folder, 7); };
        for (int clicks = 0; clicks < 2; ++clicks) { // the second brings it to the front
            click(456, 32);                          // Command12
            ASSERT_TRUE(
                eventually([&] { return activeTitle() == "Liens utiles - Orvalente, module 07"; }));
            EXPECT_TRUE(eventually([&] { return says() == "OUI"; }));
            run("xdotool", {"windowactivate", "--sync", window()});
        }
        EXPECT_EQ(run("xdotool", {"search", "--onlyvisible", "--name", "module 07"}).count('\n'),
                  1);
        leave();
        EXPECT_TRUE(eventually([&] { return says() == "NON"; }));
        if (installed) {
            EXPECT_EQ(raw_status_file::all(course()), before);
        }
    }
}

} // namespace
} // namespace app::test
