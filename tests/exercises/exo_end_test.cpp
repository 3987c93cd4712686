// The end of a test: the summary, and taking it again.

#include "exercises/small_test.h"

#include <QLabel>
#include <QTextBrowser>

namespace exercises::test {
namespace {

using Finished = Test;

TEST_F(Finished, isSummedUpWithTheWaysOn) {
    state.QuestionState.store(1, -1);
    state.GivenAnswers.store(1, u"01000");
    state.QuestionState.store(3, -1);
    state.GivenAnswers.store(3, u"<b>volt</b>");
    state.QuestionState.store(4, 1);
    openAt(2);
    EXPECT_FALSE(control("bilan").isVisible());
    click("Option1_1");
    click("command5");
    ASSERT_EQ(messageBoxes.messages.back().title, u"Test terminé");
    auto& text = control<QTextBrowser>("summaryText");
    ASSERT_TRUE(text.isVisible());
    EXPECT_FALSE(area().isVisible());
    EXPECT_EQ(text.toPlainText().remove(QChar(QChar::ObjectReplacementCharacter)),
              QStringLiteral("2 réponses justes sur 4. À revoir :\n"
                             "Question 1 – Cochez.\n"
                             " Votre réponse : H2O liquide\n"
                             " Bonne réponse : le verre ; l’air\n"
                             "Revoir la page\n"
                             "Question 3 – Unité : .\n"
                             " Votre réponse : <b>volt</b>\n"
                             " Bonne réponse : ohm\n"
                             "Revoir la page"));

    const auto follow = [&](const char* link) {
        Q_EMIT text.anchorClicked(QUrl(QString::fromLatin1(link)));
    };
    follow("question:3");
    EXPECT_EQ(control<QLabel>("noa").text(), u"Question 3 / 4 :");
    EXPECT_TRUE(area().isVisible());
    EXPECT_FALSE(text.isVisible());
    click("bilan");
    ASSERT_TRUE(text.isVisible());
    follow("page:12");
    EXPECT_FALSE(exo->isVisible());
    EXPECT_EQ(shared.ExerciseReturnPage, 12);
    EXPECT_EQ(shared.PendingExerciseChapter, 3);
    openWindow();
    EXPECT_TRUE(control("bilan").isVisible());
}

TEST_F(Finished, isTakenAgainAsAWholeOrWhereItWasWrong) {
    for (const int question : {1, 2, 3, 4})
        state.QuestionState.store(question, question % 2 ? 1 : -1);
    openAt(4);
    click("bilan");
    click("wrongAnswers");
    EXPECT_EQ(state.CurrentQuestion, 2);
    EXPECT_TRUE(control("command5").isVisible());
    EXPECT_FALSE(control("bilan").isVisible());
    click("Option1_1");
    click("command5");
    EXPECT_EQ(state.CurrentQuestion, 4);
    EXPECT_EQ(verdict(3), 1);
    click("command5"); // nothing is to be ticked in the last
    auto& text = control<QTextBrowser>("summaryText");
    EXPECT_EQ(text.toPlainText().trimmed().right(32), u"Toutes vos réponses sont justes.");
    EXPECT_FALSE(control("wrongAnswers").isVisible());
    click("wholeTest");
    EXPECT_EQ(state.CurrentQuestion, 1);
    for (const int question : {1, 2, 3, 4})
        EXPECT_EQ(verdict(question), 0);
    EXPECT_FALSE(control("command6").isVisible());
    EXPECT_EQ(shared.PendingExerciseChapter, 3);
}

// The comment on it is read first; the summary waits behind its button.
TEST_F(Finished, byAWrongAnswerItShowsTheCorrection) {
    for (const int question : {1, 3, 4})
        state.QuestionState.store(question, 1);
    openAt(2);
    click("command5");
    EXPECT_TRUE(area().readableText().contains(u"Relisez."));
    EXPECT_TRUE(control("bilan").isVisible());
}

} // namespace
} // namespace exercises::test
