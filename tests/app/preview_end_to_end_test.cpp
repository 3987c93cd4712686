// The shell on sources that are being written, as an author sees it.

#include "app/end_to_end_case.h"
#include "app/x11_picture.h"

namespace app::test {
namespace {

/// A page of ten screens and a test of one question.
class WrittenCourse : public EndToEnd {
protected:
    QString sources() override {
        write("pages/1.md", page(1, "Un"));
        write("pages/2.md", page(2, "Deux"));
        write("exercises/a/chapter.toml", "Chapitre = 1\nTitre = \"T\"\nNbquest = 1\n");
        write("exercises/a/1.md", "+++\nREFERENCE = 101\n+++\nLe [fer](réponse).\n");
        return directory_.filePath("sources");
    }
    static QByteArray page(int number, const QByteArray& title) {
        return "+++\nNumeropage = " + QByteArray::number(number) +
               "\nIndex = " + QByteArray::number(number) + "\ntitre = \"" + title +
               "\"\nsuite = true\n+++\n[le test](exo:1)\n\n[la page deux](page:2)\n\n" + lines();
    }
    static QByteArray lines() {
        QByteArray all;
        for (int i = 1; i <= 200; ++i)
            all += "Ligne " + QByteArray::number(i) + ".\n\n";
        return all;
    }
    void write(const QString& name, const QByteArray& text) {
        const QString path = directory_.filePath("sources/" + name);
        QDir().mkpath(QFileInfo(path).path());
        test_support::writeFile(path, text);
    }
    void preview() {
        shell_.setProcessEnvironment(environment());
        shell_.start(ORVALENTE_COURS, {"preview", directory_.filePath("sources")});
        ASSERT_TRUE(eventually([&] { return title().endsWith("Un"); }));
        ASSERT_TRUE(eventually([&] { return place().size() == QSize(800, 600); }));
    }
    /// As many editors save: beside the old file, then in its place.
    void saveByRename(const QString& name, const QByteArray& text) {
        write(name + "~", text);
        std::filesystem::rename(directory_.filePath("sources/" + name + "~").toStdString(),
                                directory_.filePath("sources/" + name).toStdString());
    }
    /// What the window shows of a part of itself, once it shows the same twice running.
    QImage settled(const QRect& part, const QString& window = "Orvalente") {
        QImage shown;
        EXPECT_TRUE(eventually([&] {
            const QImage before = std::exchange(
                shown, test_support::pictureOfScreen(session_.display(),
                                                     part.translated(place(window).topLeft())));
            return !shown.isNull() && before == shown;
        }));
        return shown;
    }
    bool shows(const QString& words) {
        return eventually([&] { return title().endsWith(words); });
    }
};

TEST_F(WrittenCourse, showsWhatIsSavedAndTellsPlaces) {
    preview();
    write("pages/1.md", page(1, "Neuf"));
    EXPECT_TRUE(shows("Neuf"));
    write("pages/1.md", "+++\n"); // a save half way through
    write("pages/1.md", page(1, "Encore"));
    EXPECT_TRUE(shows("Encore"));
    press("Page_Down");
    run("xdotool", {"keydown", "ctrl"});
    click(300, 300);
    run("xdotool", {"keyup", "ctrl"});
    QByteArray told;
    EXPECT_TRUE(
        eventually([&] { return (told += shell_.readAllStandardOutput()).endsWith('\n'); }));
    EXPECT_TRUE(told.startsWith((directory_.filePath("sources") + "/pages/1.md:").toUtf8()))
        << told.constData();
}

TEST_F(WrittenCourse, goesToTheFirstPageWhenTheOneThatIsShownVanishes) {
    preview();
    click(190, 150);
    ASSERT_TRUE(shows("Deux"));
    QFile::remove(directory_.filePath("sources/pages/2.md"));
    EXPECT_TRUE(shows("Un"));
    EXPECT_EQ(shell_.state(), QProcess::Running);
    write("pages/2.md", page(2, "Revenue"));
    write("pages/1.md", page(1, "Toujours"));
    EXPECT_TRUE(shows("Toujours"));
}

TEST_F(WrittenCourse, staysWhereThePageIsScrolled) {
    preview();
    const QRect column(180, 150, 400, 300);
    const QImage top = settled(column);
    press("Page_Down");
    press("Page_Down");
    ASSERT_TRUE(eventually([&] { return settled(column) != top; }));
    const QImage scrolled = settled(column);
    saveByRename("pages/1.md", page(1, "Neuf"));
    EXPECT_TRUE(shows("Neuf"));
    EXPECT_EQ(settled(column), scrolled);
    // A page that is written in two goes is not shown half.
    QFile half(directory_.filePath("sources/pages/1.md"));
    ASSERT_TRUE(half.open(QIODevice::WriteOnly));
    half.write("+++\nNumeropage = 1\ntitre = \"Mo");
    half.flush();
    ASSERT_TRUE(eventually([&] { return settled({0, 560, 800, 20}) != QImage(); }));
    QThread::msleep(200);
    EXPECT_TRUE(title().endsWith("Neuf"));
    half.seek(0);
    half.write(page(1, "Entier"));
    half.close();
    EXPECT_TRUE(shows("Entier"));
    EXPECT_EQ(settled(column), scrolled);
}

TEST_F(WrittenCourse, keepsWhatIsTickedWhileItsQuestionChanges) {
    const auto question = [](const char* end) {
        return QByteArray("+++\nREFERENCE = 101\n+++\nQue voit-on ?\n\n- [x] un prisme\n"
                          "- [ ] une lentille\n\n") +
               end;
    };
    write("exercises/a/1.md", question(""));
    preview();
    click(190, 128); // the link
    ASSERT_TRUE(eventually([&] { return activeTitle() == "Exercices"; }));
    movePointer(5, 5, "Exercices");
    const QRect choices(0, 0, 600, 400);
    const QImage empty = settled(choices, "Exercices");
    click(230, 192, "Exercices"); // the first choice
    movePointer(5, 5, "Exercices");
    ASSERT_TRUE(eventually([&] { return settled(choices, "Exercices") != empty; }));
    const QImage ticked = settled(choices, "Exercices");
    saveByRename("exercises/a/1.md", question("Une phrase de plus.\n"));
    write("pages/1.md", page(1, "Dessous"));
    ASSERT_TRUE(shows("Dessous"));
    const QImage after = settled(choices, "Exercices");
    EXPECT_NE(after, ticked); // the phrase
    int tickKept = 0;
    int tickLost = 0;
    for (int y = 0; y < choices.height(); ++y)
        for (int x = 0; x < choices.width(); ++x)
            if (empty.pixel(x, y) != ticked.pixel(x, y))
                ++(after.pixel(x, y) == ticked.pixel(x, y) ? tickKept : tickLost);
    EXPECT_GT(tickKept, 20);
    EXPECT_LT(tickLost, tickKept / 4); // the ring around what has the keyboard may go
}

TEST_F(WrittenCourse, keepsAnAnswerWhileItsQuestionChanges) {
    preview();
    click(190, 128); // the link
    ASSERT_TRUE(eventually([&] { return activeTitle() == "Exercices"; }));
    run("xdotool", {"type", "ab"});
    write("exercises/a/1.md", "+++\nREFERENCE = 101\n+++\nLe métal est le [fer](réponse) ici.\n");
    write("pages/1.md", page(1, "Dessous"));
    EXPECT_TRUE(shows("Dessous"));
    press("ctrl+a");
    EXPECT_TRUE(eventually([&] { return run(SELECTED_TEXT, {}) == "ab"; }));
}

} // namespace
} // namespace app::test
