// The shell on sources that are being written, as an author sees it.

#include "app/end_to_end_case.h"

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
               "\"\nsuite = true\n+++\n[le test](exo:1)\n\n" +
               QByteArray("Ligne.\n\n").repeated(200);
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
    // On page 2, which then vanishes.
    press("ctrl+Right");
    run("xdotool", {"key", "Right"});
    QFile::remove(directory_.filePath("sources/pages/2.md"));
    write("pages/1.md", page(1, "Seule"));
    EXPECT_TRUE(shows("Seule"));
    EXPECT_EQ(shell_.state(), QProcess::Running);
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
