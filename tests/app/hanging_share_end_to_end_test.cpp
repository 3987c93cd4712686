// The real program on a course on a share that hangs: nothing fails, but whoever reads waits.

#include "app/end_to_end_case.h"

namespace app::test {
namespace {

class HangingShare : public EndToEnd {
protected:
    QString sources() override {
        const QString directory = directory_.filePath("sources");
        QDir().mkpath(directory + "/pages");
        const auto write = [&](int number, const QByteArray& title, const QByteArray& text) {
            test_support::writeFile(directory + QStringLiteral("/pages/%1.page").arg(number),
                                    "+++\nNumeropage = " + QByteArray::number(number) +
                                        "\nmoteur = true\ntitre = \"" + title +
                                        "\"\n+++\n##TITBAR" + title + '\n' + text + "¶\n");
        };
        write(1, "Un", "Un");
        write(2, "Deux", QByteArray(150'000, 'a')); // so that others are not read along with it
        write(28, "Physique", "Le prisme" + QByteArray(5'000, 'b'));
        write(30, "Chimie", QByteArray(5'000, 'c'));
        return directory;
    }

    QProcessEnvironment environment() const override {
        auto environment = EndToEnd::environment();
        environment.insert("LD_PRELOAD", SHARE_AWAY);
        environment.insert("AWAY_BELOW", course());
        environment.insert("AWAY_WHILE", hanging());
        environment.insert("AWAY_HANGS", waiting());
        return environment;
    }

    void hang() {
        QFile::remove(waiting());
        test_support::writeFile(hanging(), {});
    }
    void answer() { QFile::remove(hanging()); }
    bool isWaitedFor() const {
        return eventually([&] { return QFile::exists(waiting()); });
    }
    bool isActive(const QString& title) const {
        return eventually([&] { return activeTitle() == title; });
    }

private:
    QString hanging() const { return directory_.filePath("hanging"); }
    QString waiting() const { return directory_.filePath("waiting"); }
};

TEST_F(HangingShare, getsAllThatWasTypedOnceItAnswers) {
    start();
    ASSERT_TRUE(eventually([&] { return activeTitle().endsWith("Un"); }));

    // The window of the search is there for the words, and the page found opens by what was typed.
    hang();
    press("ctrl+l");
    ASSERT_TRUE(isActive("Rechercher"));
    run("xdotool", {"type", "prisme"});
    press("Return");
    ASSERT_TRUE(isWaitedFor());
    press("Return");
    answer();
    ASSERT_TRUE(eventually([&] { return activeTitle().endsWith("Physique"); }));

    // Pages, and the end, in the order in which they were asked for.
    hang();
    press("alt+h");
    ASSERT_TRUE(isWaitedFor());
    for (const char* key : {"alt+Home", "alt+Left", "alt+Left", "alt+Right", "ctrl+q"})
        press(QString::fromLatin1(key));
    EXPECT_TRUE(activeTitle().endsWith("Physique"));
    answer();
    ASSERT_TRUE(isActive("Quitter"));
    EXPECT_TRUE(title().endsWith("Chimie")) << qPrintable(title());
    press("Return");
    ASSERT_TRUE(shell_.waitForFinished(30'000));
    EXPECT_EQ(shell_.exitCode(), 0);
}

} // namespace
} // namespace app::test
