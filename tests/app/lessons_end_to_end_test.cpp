// Tests and videos in the real program.

#include "app/end_to_end_case.h"
#include "app/x11_picture.h"
#include "platform_mpv/clips.h"

#include <QImage>

namespace app::test {
namespace {

/// A course whose first page leads to a test of two questions, the first with a link to page 2 in
/// its comment.
class TestedPages : public EndToEnd {
protected:
    QString sources() override {
        const QString directory = directory_.filePath("sources");
        QDir().mkpath(directory + "/pages");
        QDir().mkpath(directory + "/exercises/ohm");
        const auto write = [&](const QByteArray& name, const QByteArray& text) {
            test_support::writeFile(directory + u'/' + QString::fromLatin1(name), text);
        };
        write("pages/1.page", "+++\nNumeropage = 1\nIndex = 1\n+++\n##SI12\n##PIY020\n"
                              "##LIERTun mot#EXO003\n##PIY040\n");
        write("pages/2.page", "+++\nNumeropage = 2\nIndex = 2\n+++\n##TITBARDeux\n##SI12\nDeux¶\n");
        write("exercises/ohm/chapter.toml", "Chapitre = 3\nTitre = \"Ohm\"\nNbquest = 2\n");
        for (const QByteArray number : {"301", "302"})
            write("exercises/ohm/" + number + ".question",
                  "+++\nREFERENCE = " + number +
                      "\ntype = 3\nsolution = \"ohm\"\n+++\n##SI12\n##EXOTX\n¶\n"
                      "+++\n##PIY020\n##EXOLIRevoir#2\n¶\n");
        return directory;
    }

    bool testIsActive() const { return activeTitle() == "Exercices"; }
};

TEST_F(TestedPages, aTestIsLeftForAPageTakenUpAndGivenUp) {
    start();
    ASSERT_TRUE(eventually([&] { return place().size() == QSize(800, 600); }));
    click(190, 150); // the link
    ASSERT_TRUE(eventually([&] { return testIsActive(); }));
    EXPECT_TRUE(eventually([&] { return place("Exercices") == place(); }));
    run("xdotool", {"type", "1.5"});

    // The calculator is usable beside the test, which has kept what was typed.
    click(688, 100, "Exercices");
    ASSERT_TRUE(eventually([&] { return activeTitle() == "Calculatrice"; }));
    run("xdotool", {"type", "2*30"});
    press("Return");
    EXPECT_TRUE(eventually([&] {
        click(25, 34, "Calculatrice", 2);
        return run(SELECTED_TEXT, {}) == "60";
    }));
    click(400, 90, "Exercices");
    ASSERT_TRUE(eventually([&] { return testIsActive(); }));
    press("ctrl+a");
    EXPECT_TRUE(eventually([&] { return run(SELECTED_TEXT, {}) == "1,5"; }));

    press("Return"); // wrong
    EXPECT_TRUE(eventually([&] {
        click(230, 195, "Exercices"); // the link of the comment
        return title().endsWith("Deux");
    }));
    EXPECT_TRUE(windows("Exercices").isEmpty());
    click(80, 504); // btexo
    ASSERT_TRUE(eventually([&] { return testIsActive(); }));
    press("Escape");
    ASSERT_TRUE(eventually([&] { return activeTitle() == "Fermer"; }));
    press("alt+o");
    EXPECT_TRUE(eventually([&] { return activeTitle().endsWith("Deux"); }));
    EXPECT_EQ(shell_.state(), QProcess::Running);
}

/// A course of two pages, the first with a video that lies on the disc of drive E; the program runs
/// in a French locale.
class VideoPages : public EndToEnd {
protected:
    VideoPages() {
        qputenv("ORVALENTE_NO_SOUND", "1");
        qputenv("LOCPATH", FRENCH_LOCALES);
        qputenv("LC_ALL", "fr_FR.UTF-8");
    }
    ~VideoPages() override {
        for (const char* name : {"ORVALENTE_NO_SOUND", "LOCPATH", "LC_ALL"})
            qunsetenv(name);
    }

    QString sources() override {
        const QString directory = directory_.filePath("sources");
        QDir().mkpath(directory + "/pages");
        test_support::writeFile(directory + "/pages/1.page",
                                "+++\nNumeropage = 1\nIndex = 1\nsuite = true\n+++\n"
                                "##VIDEOfilm.avi\n##TITBARUn\n");
        test_support::writeFile(directory + "/pages/2.page",
                                "+++\nNumeropage = 2\nIndex = 2\nprecedent = true\n+++\n"
                                "##VIDEOfilm.avi\n##TITBARDeux\n");
        return directory;
    }

    QString drive() {
        const QTemporaryDir made;
        QDir().mkpath(directory_.filePath("e/ZEKXV"));
        const test_support::Clip clip{"film", "mpeg4", "12.5", 100, 8, "-g 25 -qscale:v 3"};
        EXPECT_TRUE(QFile::rename(clip.make(made), directory_.filePath("e/ZEKXV/film.avi")));
        return "E=" + directory_.filePath("e");
    }

    /// Number of the frame in `projo`.
    int shown() const {
        const QRect projo(QPoint(176, 304), QSize(320, 240));
        return test_support::Clip::numberIn(
            test_support::pictureOfScreen(session_.display(), projo.translated(place().topLeft())));
    }
    bool shows(int frame) const {
        return eventually([&] { return shown() == frame; });
    }
    bool playerIsLoaded() const {
        return test_support::readFile(QStringLiteral("/proc/%1/maps").arg(shell_.processId()))
            .contains("libmpv");
    }
};

TEST_F(VideoPages, playsFromTheDiscAndLeavesWhilePlaying) {
    start({"--drive", drive()});
    ASSERT_TRUE(eventually([&] { return place().size() == QSize(800, 600); }));
    click(716, 576); // suite
    ASSERT_TRUE(eventually([&] { return title().endsWith("Deux"); }));
    EXPECT_FALSE(playerIsLoaded());
    click(769, 512); // to the end
    EXPECT_TRUE(shows(99));
    EXPECT_TRUE(playerIsLoaded());
    press("Left");
    EXPECT_TRUE(shows(98));
    press("Home");
    EXPECT_TRUE(shows(0));
    press("Right");
    EXPECT_TRUE(shows(1));
    press("space");
    EXPECT_TRUE(eventually([&] { return shown() > 10; }));
    click(244, 576); // avantcours
    ASSERT_TRUE(eventually([&] { return title().endsWith("Un"); }));
    click(645, 512); // plays
    EXPECT_TRUE(eventually([&] { return shown() > 10; }));
    press("alt+q");
    ASSERT_TRUE(eventually([&] { return activeTitle() == "Quitter"; }));
    press("Return");
    ASSERT_TRUE(shell_.waitForFinished(30'000));
    EXPECT_EQ(shell_.exitCode(), 0);
    EXPECT_EQ(QString::fromUtf8(shell_.readAllStandardError()), QString());
}

#ifdef SHARE_AWAY
/// The disc with the video hangs: nothing fails, but whoever reads waits.
class HangingDisc : public VideoPages {
protected:
    QProcessEnvironment environment() const override {
        auto environment = VideoPages::environment();
        environment.insert("LD_PRELOAD", SHARE_AWAY);
        environment.insert("AWAY_BELOW", directory_.filePath("e"));
        environment.insert("AWAY_WHILE", directory_.filePath("hanging"));
        environment.insert("AWAY_HANGS", directory_.filePath("waiting"));
        return environment;
    }
};

TEST_F(HangingDisc, keepsNobodyFromTurningPagesAndLeaving) {
    start({"--drive", drive()});
    ASSERT_TRUE(eventually([&] { return place().size() == QSize(800, 600); }));
    click(645, 512); // plays
    // Where nothing is shown yet is more white than any frame has.
    ASSERT_TRUE(eventually([&] { return shown() > 2 && shown() < 100; }));
    test_support::writeFile(directory_.filePath("hanging"), {});
    ASSERT_TRUE(eventually([&] { return QFile::exists(directory_.filePath("waiting")); }));
    click(716, 576); // suite
    ASSERT_TRUE(eventually([&] { return title().endsWith("Deux"); }));
    press("alt+q");
    ASSERT_TRUE(eventually([&] { return activeTitle() == "Quitter"; }));
    press("Return");
    ASSERT_TRUE(shell_.waitForFinished(30'000));
    EXPECT_EQ(shell_.exitCode(), 0);
}
#endif

} // namespace
} // namespace app::test
