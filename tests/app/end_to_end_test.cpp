#include "app/end_to_end_case.h"
#include "app/x11_picture.h"
#include "look/palette.h"

#include <QDirIterator>
#include <QImage>

namespace app::test {
namespace {

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

TEST_F(EndToEnd, keepsNothingOfTheFoldersVisited) {
    start();
    ASSERT_TRUE(eventually([&] { return place().size() == QSize(800, 600); }));
    press("alt+a");
    ASSERT_TRUE(eventually([&] { return activeTitle() == "Aide d’Orvalente"; }));
    press("ctrl+p");
    ASSERT_TRUE(eventually([&] { return activeTitle() == "Imprimer"; }));
    press("alt+c");
    ASSERT_TRUE(eventually([&] { return activeTitle() == "Fichier PDF"; }));
    press("Return");
    ASSERT_TRUE(eventually([&] { return activeTitle() == "Imprimer"; }));
    press("Escape");
    ASSERT_TRUE(eventually([&] { return activeTitle() == "Aide d’Orvalente"; }));
    press("Escape");
    ASSERT_TRUE(eventually([&] { return activeTitle().startsWith("Orvalente - "); }));
    press("alt+q");
    ASSERT_TRUE(eventually([&] { return activeTitle() == "Quitter"; }));
    press("Return");
    ASSERT_TRUE(shell_.waitForFinished(30'000));
    QStringList written;
    for (QDirIterator files(home(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
         files.hasNext();)
        if (const QString file = files.next(); !file.contains(u"/.cache/")) // of the fonts
            written.append(file);
    EXPECT_EQ(written.join(u' ').toStdString(), "");
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
    // Held down until it repeats itself, Enter calculates once.
    run("xdotool", {"keydown", "Return", "sleep", "1", "keyup", "Return"});
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

TEST_F(EndToEnd, opensAPageThatWasSearchedAndMarksItsWords) {
    start();
    ASSERT_TRUE(eventually([&] { return place().size() == QSize(800, 600); }));
    click(259, 32); // command4
    ASSERT_TRUE(eventually([&] { return activeTitle() == "Rechercher"; }));
    run("xdotool", {"type", "Sahl"});
    press("Return"); // searches
    press("Return"); // opens the only page found
    ASSERT_TRUE(eventually([&] { return activeTitle().contains("Optique"); }));
    const auto isMarked = [&] {
        const QImage page = test_support::pictureOfScreen(
            session_.display(), QRect(176, 120, 600, 400).translated(place().topLeft()));
        for (int y = 0; y < page.height(); ++y)
            for (int x = 0; x < page.width(); ++x)
                if (page.pixel(x, y) == look::kCurrentMarkTint)
                    return true;
        return false;
    };
    EXPECT_TRUE(eventually(isMarked));
    press("Escape");
    EXPECT_TRUE(eventually([&] { return !isMarked(); }));
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
    start({"--scale", "1.1"});
    EXPECT_TRUE(eventually([&] { return place().size() == QSize(880, 660); }));
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

TEST_F(LinkedPages, linksLookAsTextUntilThePointerComes) {
    for (const double scale : {1.0, 1.1}) {
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

TEST_F(LinkedPages, linksAreFollowedByMouseAndKeyboard) {
    start();
    const auto isSecond = [&] { return title().endsWith("Deux"); };
    ASSERT_TRUE(eventually([&] { return place().size() == QSize(800, 600); }));
    press("Tab"); // the page has the keyboard from the start
    press("Return");
    EXPECT_TRUE(eventually(isSecond));
    press("alt+Left");
    ASSERT_TRUE(eventually([&] { return !isSecond(); }));
    click(240, 190);
    EXPECT_TRUE(eventually(isSecond));
    press("alt+Left");
    ASSERT_TRUE(eventually([&] { return !isSecond(); }));
    press("Tab"); // the click gave the keyboard to the page
    press("Return");
    EXPECT_TRUE(eventually(isSecond));
}

TEST_F(LinkedPages, theOrderFormAndTheDialogAboutTheInstallation) {
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

} // namespace
} // namespace app::test
