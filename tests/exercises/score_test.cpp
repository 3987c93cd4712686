#include "exercises/right_answer_blink.h"
#include "exercises/score.h"
#include "text/utf8.h"

#include <gtest/gtest.h>

namespace exercises {
namespace {

TEST(Score, followsTheShareOfRightAnswers) {
    const struct {
        int right, answered, questions, face;
        const char16_t* title;
        const char16_t* text;
    } rows[] = {
        {1, 1, 10, 7, u"Actuellement...", u" 1 / 1 soit 100 % de bonnes réponses."},
        {0, 3, 10, 1, u"Actuellement...", u" 0 / 3 soit 0 % de bonnes réponses."},
        {2, 3, 10, 5, u"Actuellement...", u" 2 / 3 soit 67 % de bonnes réponses."},
        {5, 7, 7, 6, u"Test terminé", u" 5 / 7 soit 71 % de bonnes réponses."},
        {1, 7, 8, 2, u"Actuellement...", u" 1 / 7 soit 14 % de bonnes réponses."},
        {6, 7, 8, 7, u"Actuellement...", u" 6 / 7 soit 86 % de bonnes réponses."},
        {99, 100, 100, 7, u"Test terminé", u" 99 / 100 soit 99 % de bonnes réponses."},
        // halves to the even neighbour
        {1, 8, 8, 1, u"Test terminé", u" 1 / 8 soit 12 % de bonnes réponses."},
        {3, 8, 9, 3, u"Actuellement...", u" 3 / 8 soit 38 % de bonnes réponses."},
    };
    for (const auto& row : rows) {
        const Counts counts{row.answered, row.right};
        EXPECT_EQ(smileLevel(counts), row.face) << text::toUtf8(row.text);
        const Message message{row.title, row.text};
        EXPECT_EQ(scoreMessage(counts, row.questions), message) << text::toUtf8(row.text);
    }
}

TEST(Score, beforeAnyAnswerThereIsNone) {
    EXPECT_EQ(smileLevel({}), std::nullopt);
    const Message message{u"Test", u"Vous n'avza répondu à aucune question."};
    EXPECT_EQ(scoreMessage({}, 0), message);
}

TEST(NextUnanswered, goesForwardThenToTheLowest) {
    // The state of each question from the first: "0", "1" or "-".
    const struct {
        const char* states;
        int current, expected;
    } rows[] = {{"000", 1, 2},    {"1-0", 1, 3},  {"001", 3, 1}, {"111", 2, 0}, {"1--1", 4, 0},
                {"101101", 5, 2}, {"1011", 2, 2}, {"", 1, 0},    {"0", 1, 1}};
    for (const auto& row : rows) {
        TestState test;
        for (const char* c = row.states; *c; ++c)
            test.QuestionState.store(++test.QuestionCount, *c == '-' ? -1 : *c == '1');
        test.CurrentQuestion = static_cast<std::int16_t>(row.current);
        EXPECT_EQ(nextUnanswered(test).value_or(0), row.expected) << row.states;
    }
}

TEST(RightAnswerBlink, goesAtTheThirdTick) {
    RightAnswerBlink popup;
    for (int times = 0; times < 2; ++times) {
        popup.activate();
        EXPECT_TRUE(popup.showsFirstPicture());
        EXPECT_TRUE(popup.tick() && !popup.showsFirstPicture());
        EXPECT_TRUE(popup.tick() && popup.showsFirstPicture());
        EXPECT_FALSE(popup.tick());
    }
}

} // namespace
} // namespace exercises
