// The real program on the real demonstration course, on a display with a window manager.

#include "app/x11_picture.h"
#include "platform_mpv/clips.h"
#include "support/files.h"
#include "support/x11_session.h"

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <memory>

using test_support::eventually;
using test_support::X11Session;

namespace {

class EndToEnd : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_FALSE(session_.display().isEmpty()) << "Xvfb is missing";
        ASSERT_EQ(QProcess::execute(ORVALENTE_COURS, {"build", sources(), "-o", course()}), 0);
    }

    /// Directory of the sources of the course.
    virtual QString sources() { return COURSE_SOURCES; }

    ~EndToEnd() override {
        shell_.kill();
        shell_.waitForFinished();
    }

    QString course() const { return directory_.filePath("cours"); }

    QProcessEnvironment environment() const {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("DISPLAY", QString::fromLatin1(session_.display()));
        environment.insert("QT_QPA_PLATFORM", "xcb");
        environment.insert("XDG_RUNTIME_DIR", directory_.path());
        return environment;
    }

    /// Starts the shell and waits for its window.
    void start(const QStringList& arguments = {}) {
        shell_.setProcessEnvironment(environment());
        shell_.start(ORVALENTE, QStringList{"--course", course()} + arguments);
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

    X11Session session_{X11Session::Manager::Openbox};
    QTemporaryDir directory_;
    QProcess shell_;
};

TEST_F(EndToEnd, opensTheCourseInTheMiddleOfTheScreen) {
    start();
    EXPECT_TRUE(eventually([&] { return place().size() == QSize(800, 600); }));
    EXPECT_TRUE(title().startsWith("Orvalente - KAROPE"));
    // Each record is 128 bytes: a length and single-byte characters.
    const QByteArray status = test_support::readFile(course() + "/TEMPKX.TMP");
    ASSERT_GE(status.size(), 31 * 128);
    for (int record = 0; record < 31; ++record)
        EXPECT_EQ(status.mid(record * 128, 5), QByteArray("\x03\0NON", 5)) << record;
}

TEST_F(EndToEnd, refusesToBeResized) {
    start();
    ASSERT_TRUE(eventually([&] { return place().size() == QSize(800, 600); }));
    run("xdotool", {"windowsize", window(), "1000", "700"});
    EXPECT_TRUE(eventually([&] { return place().size() == QSize(800, 600); }));
    EXPECT_EQ(shell_.state(), QProcess::Running);
}

TEST_F(EndToEnd, asksBeforeLeaving) {
    start();
    ASSERT_TRUE(eventually([&] { return place().size() == QSize(800, 600); }));
    const QString shell = title();
    press("alt+q");
    ASSERT_TRUE(eventually([&] { return activeTitle() == "Quitter"; }));
    press("Escape");
    ASSERT_TRUE(eventually([&] { return activeTitle() == shell; }));
    EXPECT_EQ(shell_.state(), QProcess::Running);
    click(760, 32); // Command14
    ASSERT_TRUE(eventually([&] { return activeTitle() == "Quitter"; }));
    press("Return");
    ASSERT_TRUE(shell_.waitForFinished(30'000));
    EXPECT_EQ(shell_.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(shell_.exitCode(), 0);
}

TEST_F(EndToEnd, calculatesBesideTheCourse) {
    start();
    ASSERT_TRUE(eventually([&] { return place().size() == QSize(800, 600); }));
    run("xdotool", {"windowmove", window(), "300", "100"});
    ASSERT_TRUE(eventually([&] { return place().x() >= 300; }));
    click(312, 32); // Command3
    ASSERT_TRUE(eventually([&] { return activeTitle() == "Calculatrice"; }));
    run("xdotool", {"windowmove", window("Calculatrice"), "0", "0"});
    ASSERT_TRUE(eventually([&] { return place("Calculatrice").x() < 10; }));
    EXPECT_EQ(place("Calculatrice").size(), QSize(302, 430));
    run("xdotool", {"type", "2*30"});
    press("Return");
    click(230, 371, "Calculatrice"); // plus: the last answer comes first
    click(103, 371, "Calculatrice"); // 1
    click(273, 403, "Calculatrice"); // =
    // What a double click in the display selects can be copied.
    EXPECT_TRUE(eventually([&] {
        click(25, 34, "Calculatrice", 2);
        return run(SELECTED_TEXT, {}) == "61";
    }));
    click(700, 550);
    ASSERT_TRUE(eventually([&] { return activeTitle().startsWith("Orvalente"); }));
    click(312, 32);
    ASSERT_TRUE(eventually([&] { return activeTitle() == "Calculatrice"; }));
    EXPECT_EQ(windows("Calculatrice").size(), 1);
}

TEST_F(EndToEnd, saysThatTheDatabaseIsAbsent) {
    QFile::remove(course() + "/Zekx.mdb");
    shell_.setProcessEnvironment(environment());
    shell_.start(ORVALENTE, {"--course", course()});
    ASSERT_TRUE(eventually([&] { return activeTitle() == "Exécution impossible"; }));
    press("Return");
    EXPECT_TRUE(shell_.waitForFinished(30'000));
    EXPECT_FALSE(QFile::exists(course() + "/TEMPKX.TMP"));
}

TEST_F(EndToEnd, enlargesEverything) {
    start({"--scale", "1.25"});
    EXPECT_TRUE(eventually([&] { return place().size() == QSize(1000, 750); }));
}

/// A course of two pages. The first shows the same words without and with a link in them, 40 pixels
/// below; the second has a title of its own.
class LinkedPages : public EndToEnd {
protected:
    QString sources() override {
        const QString directory = directory_.filePath("sources");
        QDir().mkpath(directory + "/pages");
        test_support::writeFile(directory + "/pages/1.page",
                                "+++\nNumeropage = 1\nIndex = 1\n+++\n##SI12\n##PIY020\n"
                                "Avant, un mot, après\n##POX000\n##PIY040\n"
                                "Avant, \n##LIERTun mot#PAG002\n, après\n##PIY040\n"
                                "##POX000\n##PIY040\n##LIERTun bon#BDC000\n##PIY040\n");
        test_support::writeFile(directory + "/pages/2.page",
                                "+++\nNumeropage = 2\nIndex = 2\n+++\n##TITBARDeux\n");
        return directory;
    }

    /// The line of the page at a height, in pixels of the page, on a window enlarged by `scale`.
    QImage line(int y, double scale) const {
        const QRectF part(176, 120 + y, 300, 24);
        return test_support::pictureOfScreen(session_.display(),
                                             QRectF(part.topLeft() * scale, part.size() * scale)
                                                 .translated(place().topLeft())
                                                 .toAlignedRect());
    }
};

TEST_F(LinkedPages, LinksLookAsTextUntilThePointerComes) {
    for (const double scale : {1.0, 1.25}) {
        start({"--scale", QString::number(scale)});
        run("xdotool", {"mousemove", "5", "5"});
        const auto plain = [&] { return line(20, scale); };
        const auto linked = [&] { return line(60, scale); };
        const auto blank = [&] { return line(100, scale); };
        EXPECT_TRUE(eventually([&] { return plain() != blank() && linked() == plain(); })) << scale;
        movePointer(qRound(240 * scale), qRound(190 * scale));
        EXPECT_TRUE(eventually([&] { return linked() != plain(); })) << scale;
        shell_.kill();
        shell_.waitForFinished();
    }
}

TEST_F(LinkedPages, LinksAreFollowedByMouseAndKeyboard) {
    start();
    const auto isSecond = [&] { return title().endsWith("Deux"); };
    ASSERT_TRUE(eventually([&] { return place().size() == QSize(800, 600); }));
    click(240, 190);
    EXPECT_TRUE(eventually(isSecond));
    press("alt+Left");
    ASSERT_TRUE(eventually([&] { return !isSecond(); }));
    // Over the ten buttons of the toolbar and the page to its link.
    for (int stop = 0; stop < 12; ++stop)
        press("Tab");
    press("Return");
    EXPECT_TRUE(eventually(isSecond));
}

TEST_F(LinkedPages, TheOrderFormAndTheDialogAboutTheInstallation) {
    start();
    ASSERT_TRUE(eventually([&] { return place().size() == QSize(800, 600); }));
    const QString shell = title();
    EXPECT_TRUE(eventually([&] {
        click(196, 268); // the link
        return activeTitle() == "Bon de commande";
    }));
    press("Escape");
    ASSERT_TRUE(eventually([&] { return activeTitle() == shell; }));
    click(648, 32); // Command8
    ASSERT_TRUE(eventually([&] { return activeTitle() == "Mise à jour"; }));
    press("alt+m"); // there is no updater
    ASSERT_TRUE(eventually([&] { return activeTitle() == "MAJKX.EXE"; }));
    press("Return");
    ASSERT_TRUE(eventually([&] { return activeTitle() == "Mise à jour"; }));
    press("Escape");
    EXPECT_TRUE(eventually([&] { return activeTitle() == shell; }));
}

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

TEST_F(TestedPages, ATestIsLeftForAPageTakenUpAndGivenUp) {
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

TEST_F(VideoPages, PlaysFromTheDiscAndLeavesWhilePlaying) {
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

/// Modules beside the shell when it is left.
class Leaving : public LinkedPages {
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

} // namespace
