// Questions and databases that make no sense.

#include "exercises/small_test.h"

#include <QLabel>
#include <QLineEdit>
#include <QTextBrowser>

namespace exercises::test {
namespace {

using BadInput = ExoCase;

TEST_F(BadInput, leavesTheWindowUsable) {
    std::u16string crowd = u"##SI2048\r\n##EXOTX\r\n##EXOTX\r\n##POY999\r\n";
    for (int i = 0; i < 9; ++i)
        crowd += u"##EXOOP\r\n##EXOCK\r\n##PIX-99\r\n";
    crowd += u"##EXOLI#\r\n##EXOVI#x\r\n##OBJILLUS\r\n##EXOOP\r\n";
    const struct {
        jet::Value count, type, solution, source;
    } rows[] = {
        {number(0), number(1), jet::Value(u"1"), jet::Value(kBoxes)},
        {number(-3), number(1), jet::Value(u"abcde"), jet::Value(kBoxes)},
        {number(150), number(7), jet::Value(u"10000"), jet::Value(kTyped)},
        {jet::Value(), jet::Value(), jet::Value(), jet::Value()},
        {number(100), number(2), jet::Value(u"1111111111"), jet::Value(crowd)},
    };
    for (const auto& row : rows) {
        shared.PendingExerciseChapter = 3;
        state = {};
        write({{number(3), jet::Value(u"x"), row.count}},
              {{jet::Value(301), row.type, row.solution, row.source, row.source}});
        openWindow();
        EXPECT_TRUE(exo->isVisible());
        control("command5").click();
        control("command4").click();
        QTest::mouseClick(&control<QWidget>("Picture1"), Qt::LeftButton, {}, {5, 519});
        exo->grab();
        messageBoxes.answers = {platform::Answer::Yes};
        control("Image2").click();
        EXPECT_FALSE(exo->isVisible());
        messageBoxes.answers.clear();
    }
}

TEST_F(BadInput, aQuestionThatLeavesItsAreaTouchesNoPage) {
    auto* page = bench.control<look::PictureBox>("PictureTEXTE");
    const auto seen = [&] {
        page->showDrawing(); // as when the window comes to a screen of another density
        return std::tuple(page->grab().toImage(), page->readableText(), page->pageHeightPx(),
                          bench.window.windowTitle());
    };
    const auto before = seen();
    write({{number(3), jet::Value(u"x"), number(1)}},
          {{jet::Value(301), number(2), jet::Value(u"1"),
            jet::Value(u"##EXOOP\r\nici¶\r\n##OBJTIT\r\nailleurs¶\r\n##OBJPRINCIPAL\r\n"
                       u"##PLOUF\r\nailleurs¶\r\n##VIDEOa.avi\r\n##TITBARx\r\n"),
            jet::Value()}});
    shared.PendingExerciseChapter = 3;
    openWindow();
    EXPECT_EQ(area().readableText().trimmed(), QStringLiteral("ici"));
    EXPECT_TRUE(seen() == before);
}

TEST_F(BadInput, aMissingDatabaseIsSaidInTheWindow) {
    openWindow();
    EXPECT_EQ(control<QLabel>("noa").text(), u"Question 1 / 0 :");
    const QString said = control<QTextBrowser>("noticeText").toPlainText();
    EXPECT_TRUE(control<QWidget>("notice").isVisible());
    EXPECT_TRUE(said.contains(folder.path() + QStringLiteral("/qekx.mdb"))) << said.toStdString();
    EXPECT_TRUE(said.contains(QStringLiteral("absente du dossier"))) << said.toStdString();
    EXPECT_TRUE(said.contains(QStringLiteral("Réinstallez le cours")));
    for (const char* toQuestions : {"Command3", "command4", "command5"})
        EXPECT_FALSE(control(toQuestions).isVisible()) << toQuestions;
    control("command5").click();
    messageBoxes.answers = {platform::Answer::Yes};
    control("Image2").click();
    EXPECT_FALSE(exo->isVisible());
}

} // namespace
} // namespace exercises::test
