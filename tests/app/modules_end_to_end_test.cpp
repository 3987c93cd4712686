// The real program beside sibling programs.

#include "app/end_to_end_case.h"

#include <memory>
#include <vector>

namespace app::test {
namespace {

/// Modules beside the shell when it is left.
class Leaving : public EndToEnd {
protected:
    ~Leaving() override {
        for (const auto& module : modules_) {
            module->kill();
            module->waitForFinished();
        }
    }

    /// A program of another maker with a window of that title.
    QProcess& open(const QStringList& arguments) {
        modules_.push_back(std::make_unique<QProcess>());
        modules_.back()->setProcessEnvironment(environment());
        modules_.back()->start(PLAIN_WINDOW, arguments);
        EXPECT_TRUE(eventually([&] { return activeTitle() == arguments[0]; }));
        return *modules_.back();
    }

    void leave() {
        run("xdotool", {"windowactivate", window()});
        ASSERT_TRUE(eventually([&] { return activeTitle().startsWith("Orvalente - "); }));
        press("alt+q");
        ASSERT_TRUE(eventually([&] { return activeTitle() == "Quitter"; }));
        press("Return");
        ASSERT_TRUE(shell_.waitForFinished(30'000));
        EXPECT_EQ(shell_.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(shell_.exitCode(), 0);
    }

private:
    std::vector<std::unique_ptr<QProcess>> modules_;
};

TEST_F(Leaving, EndsTheModulesAndStartsTheCompanionOnceAModuleSaysThatItRuns) {
    test_support::writeProgram(course() + "/terminus.exe", "#!/bin/sh\necho there > trace\n");
    QProcess& projectile = open({"Mouvement d’un projectile - Orvalente, module 23"});
    QProcess& deaf = open({"Optique - Orvalente, module 09", "deaf"});
    QProcess& other = open({"Orvalente et ses modules - Notes"});
    for (const bool moduleSays : {false, true}) {
        start();
        QByteArray status = test_support::readFile(course() + "/TEMPKX.TMP");
        if (moduleSays)
            test_support::writeFile(course() + "/TEMPKX.TMP",
                                    status.replace(22 * 128 + 2, 3, "OUI"));
        leave();
        EXPECT_EQ(projectile.waitForFinished(moduleSays ? 30'000 : 0), moduleSays);
        EXPECT_TRUE(eventually([&] { return QFile::remove(course() + "/trace"); }));
    }
    EXPECT_EQ(projectile.exitStatus(), QProcess::CrashExit); // by the signal
    EXPECT_EQ(deaf.state(), QProcess::Running);
    EXPECT_EQ(other.state(), QProcess::Running);
}

TEST_F(Leaving, GoesWithTheModuleThatTheInternetButtonStarted) {
    ASSERT_TRUE(QFile::copy(QStringLiteral(LINKS_MODULE), course() + "/SIMU07.EXE"));
    start();
    ASSERT_TRUE(eventually([&] { return place().size() == QSize(800, 600); }));
    click(456, 32); // Command12
    const auto says = [&] {
        return test_support::readFile(course() + "/TEMPKX.TMP").mid(6 * 128 + 2, 3);
    };
    ASSERT_TRUE(eventually([&] { return activeTitle() == "Liens utiles - Orvalente, module 07"; }));
    EXPECT_TRUE(eventually([&] { return says() == "OUI"; }));
    leave();
    EXPECT_TRUE(eventually([&] { return says() == "NON"; }));
}

} // namespace
} // namespace app::test
