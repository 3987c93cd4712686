#include "exercises/exercise_case.h"

namespace exercises::test {
namespace {

using Opening = ExerciseCase;

TEST_F(Opening, showsTheFirstQuestionOfTheChapter) {
    write({description(2, u"Autre", number(9)), description(3, u"Optique", number(2)),
           description(3, u"Lumière", number(3))},
          {question(201, 1, u"", u"Autre\r\n", u""), question(301, 3, u"x", u"Un\r\n", u"Non"),
           question(301, 1, u"", u"Double\r\n", u"")});
    shared.ExerciseReturnPage = 12;
    state.CurrentQuestion = 4; // of a longer test
    open();
    EXPECT_EQ(window.title, u"Lumière"); // the last description counts, the first question
    EXPECT_EQ(window.caption, u"Question 1 / 3 :");
    EXPECT_EQ(window.source, u"Un\r\n");
    EXPECT_EQ(window.marker, std::pair(1, 3));
    EXPECT_EQ(window.face, TestSession::kNeutralFace);
    EXPECT_FALSE(window.previous || window.score);
    EXPECT_TRUE(window.next && window.validate);
    EXPECT_EQ(shared.ExerciseReturnPage, 0);
}

TEST_F(Opening, aChapterWithoutATestHasAStripOfTwo) {
    write({description(2, u"Autre", number(9))},
          {question(201, 1, u"", u"Une\r\n", u""), question(202, 1, u"", u"Autre\r\n", u"")});
    open();
    EXPECT_EQ(window.title, u"");
    EXPECT_EQ(window.caption, u"Question 1 / 0 :");
    EXPECT_EQ(window.source, u"Autre\r\n"); // the last record stands in for a missing one
    EXPECT_EQ(window.marker, std::pair(0, 0));
    EXPECT_EQ(state.QuestionCount, 2);
    session->next();
    EXPECT_EQ(window.caption, u"Question 2 / 2 :");
    EXPECT_EQ(window.marker, std::pair(2, 2));
}

TEST_F(Opening, nullsAreFailuresOfTheirStatementOnly) {
    write({{number(3), jet::Value(u"Titre"), number(4)},
           {number(3), jet::Value(), jet::Value()},
           {jet::Value(), jet::Value(u"Sans chapitre"), number(7)}},
          {{jet::Value(), number(1), jet::Value(), jet::Value(u"Sans numéro"), jet::Value()},
           {jet::Value(301), jet::Value(), jet::Value(), jet::Value(), jet::Value()}});
    open();
    EXPECT_EQ(window.title, u"Titre");
    EXPECT_EQ(window.caption, u"Question 1 / 4 :");
    EXPECT_EQ(window.source, u"");
    session->validate();
    EXPECT_EQ(verdict(1), -1);
    EXPECT_EQ(window.source, u"");
    shared.PendingExerciseChapter = 0; // which is not NULL
    open();
    EXPECT_EQ(window.caption, u"Question 1 / 4 :");

    records.read({}); // as when there is no database at all
    session->load();
    session->next();
    session->validate();
    EXPECT_EQ(verdict(2), -1);
}

TEST_F(Opening, aMissingDatabaseIsTold) {
    const auto tables = coursedata::openExerciseTables(folder.path());
    EXPECT_FALSE(tables.description || tables.contenu);
    EXPECT_EQ(tables.failures.size(), 1);
}

using Moving = ExerciseCase;

TEST_F(Moving, staysBetweenTheFirstAndTheLast) {
    writeBoxes(3);
    open();
    session->previous();
    EXPECT_EQ(window.caption, u"Question 1 / 3 :");
    session->next();
    EXPECT_TRUE(window.previous && window.next);
    session->next();
    session->next();
    EXPECT_EQ(window.caption, u"Question 3 / 3 :");
    EXPECT_FALSE(window.next);
    session->choose(120, 300);
    EXPECT_EQ(window.caption, u"Question 2 / 3 :");
    session->choose(5000, 300);
    EXPECT_EQ(window.caption, u"Question 3 / 3 :");
}

TEST_F(Moving, aRightAnswerLeadsToTheNextOneLeft) {
    writeBoxes(6);
    state.QuestionState.store(1, 1);
    for (const int wrong : {3, 4, 6})
        state.QuestionState.store(wrong, -1);
    state.CurrentQuestion = 5;
    open();
    EXPECT_TRUE(window.score); // some questions have been answered
    window.duringPopup = [&] { // the strip is up to date by then; the rest follows
        EXPECT_EQ(window.stripPaintings, 2);
        EXPECT_EQ(window.face, 2); // that of 1 in 4, as when the test was left
    };
    answer(true);
    EXPECT_EQ(window.popups, 1);
    EXPECT_TRUE(window.markerVisible);
    EXPECT_EQ(window.face, 3);
    EXPECT_EQ(window.caption, u"Question 2 / 6 :");
}

using Answering = ExerciseCase;

TEST_F(Answering, boxesAreComparedAsACode) {
    write({description(3, u"", number(2))},
          {question(301, 1, u"01001", u"##EXOCK\r\n##EXOCK\r\n##EXOCK\r\n", u"Non\r\n")});
    open();
    window.check(1).selected = true;
    window.check(4).selected = true; // hidden ones count too
    window.option(0).selected = true;
    session->validate();
    EXPECT_EQ(given(1), u"01001");
    EXPECT_EQ(verdict(1), 1);
    EXPECT_EQ(window.marks(ChoiceArray::Check1), u"     "); // moved on

    session->previous(); // answered right: marks, but no comment
    EXPECT_EQ(window.source, u"##EXOCK\r\n##EXOCK\r\n##EXOCK\r\n");
    EXPECT_EQ(window.marks(ChoiceArray::Check1), u"-+-  ");
    EXPECT_TRUE(window.check(1).selected && window.check(4).selected);
    EXPECT_FALSE(window.check(0).selected || window.check(0).enabled || window.check(4).enabled);
    EXPECT_FALSE(window.validate);
}

TEST_F(Answering, aWrongChoiceIsCorrectedWithTheComment) {
    write({description(3, u"", number(2))},
          {question(301, 2, u"00100", u"##EXOOP\r\n##EXOOP\r\n##EXOOP\r\n", u"Non\r\n")});
    open();
    session->validate();
    EXPECT_EQ(given(1), u"00000");
    EXPECT_EQ(verdict(1), -1);
    EXPECT_EQ(window.source, u"##EXOOP\r\n##EXOOP\r\n##EXOOP\r\nNon\r\n");
    EXPECT_EQ(window.marks(ChoiceArray::Option1), u"--+  ");
    EXPECT_EQ(window.face, 1);
    EXPECT_EQ(window.popups, 0);

    window.option(2).selected = true; // a question is answered once
    session->validate();
    EXPECT_EQ(verdict(1), -1);
}

TEST_F(Answering, aTypedAnswerIsKeptAsItStands) {
    write({description(3, u"", number(2))},
          {question(301, 3, u"masse", u"##EXOTX\r\n", u"Non\r\n"),
           question(302, 3, u"force", u"##EXOTX\r\n", u"Non\r\n")});
    open();
    window.typed = u"La Force";
    session->validate();
    EXPECT_EQ(window.typed, u"La Force");
    EXPECT_FALSE(window.typedEnabled);
    session->next();
    EXPECT_TRUE(window.typed.empty() && window.typedEnabled);
    window.typed = u"La Force";
    session->validate();
    EXPECT_EQ(verdict(1), -1);
    EXPECT_EQ(verdict(2), 1);
    EXPECT_EQ(given(2), u"La Force");
    EXPECT_EQ(TestSession::typedCharacter(u'.'), u',');
}

TEST_F(Answering, solutionsThatFitNoAnswer) {
    struct {
        int type;
        jet::Value solution;
        const char16_t* marks;
    } rows[] = {
        {1, jet::Value(u"0"), u"-++++"}, // what is not there is not "0"; meant so
        {1, jet::Value(u"0x 10000"), u"-+++-"},
        {1, jet::Value(u""), u"+++++"},
        {1, jet::Value(), u"     "},
        {7, jet::Value(u"10000"), u"     "},
        {-1, jet::Value(u"10000"), u"     "},
    };
    for (auto& row : rows) {
        write({description(3, u"", number(2))},
              {{jet::Value(301), number(row.type), row.solution,
                jet::Value(QStringLiteral("##EXOCK\r\n").repeated(7).toStdU16String()),
                jet::Value()}});
        state = {};
        open();
        answer(true);
        EXPECT_EQ(verdict(1), -1);
        EXPECT_EQ(given(1).empty(), row.type != 1);
        EXPECT_EQ(window.marks(ChoiceArray::Check1), row.marks) << row.type;
        EXPECT_FALSE(window.validate);
    }
}

TEST_F(Answering, theLastAnswerShowsTheScore) {
    for (const bool last : {true, false}) {
        writeBoxes(2);
        state = {};
        window.messages.clear();
        window.duringPopup = [&] { EXPECT_TRUE(window.messages.empty()); };
        open();
        answer(true);
        answer(last);
        ASSERT_EQ(window.messages.size(), 1u);
        EXPECT_EQ(window.messages[0].title, u"Test terminé");
        EXPECT_EQ(window.caption, u"Question 2 / 2 :");
        EXPECT_EQ(window.marks(ChoiceArray::Check1), last ? u"     " : u"+    ");
        EXPECT_FALSE(window.validate);
        EXPECT_TRUE(session->close()); // nothing left to ask about
        EXPECT_EQ(window.messages.size(), 1u);
    }
}

TEST_F(Answering, aTestLeftFromThePopupShowsNothingMore) {
    writeBoxes(1);
    open();
    window.duringPopup = [&] { session->leaveFor(u"5"); };
    answer(true);
    EXPECT_TRUE(window.messages.empty());
    EXPECT_EQ(window.face, TestSession::kNeutralFace);
}

TEST_F(Answering, theSequenceOfARightAnswerEndsOnTheStrip) {
    writeBoxes(2);
    state.QuestionState.store(2, -1);
    open();
    window.duringPopup = [&] { EXPECT_EQ(window.face, 1); };
    session->repbon();
    EXPECT_EQ(window.popups, 1);
    EXPECT_TRUE(window.stripHasFocus);
}

TEST_F(Answering, anyNumberOfQuestionsLeavesTheWindowUsable) {
    for (const int count : {-32768, -3, 0, 101, 32767}) {
        writeBoxes(count);
        state = {};
        open();
        session->next();
        session->choose(299, 300);
        answer(false);
        EXPECT_TRUE(window.score);
        session->prochainval();
        session->showScore();
        EXPECT_GE(state.CurrentQuestion, 1) << count;
        window.answers = {true};
        EXPECT_TRUE(session->close());
    }
}

TEST_F(Answering, nothingIsKeptOfAQuestionAboveAHundred) {
    writeBoxes(101);
    for (int i = 1; i <= 99; ++i)
        state.QuestionState.store(i, 1);
    state.CurrentQuestion = 100;
    open();
    answer(true);
    EXPECT_EQ(window.caption, u"Question 101 / 101 :");
    answer(true);
    EXPECT_EQ(window.popups, 2);
    EXPECT_FALSE(session->canValidate()); // no question is left to go to
    session->tritexte();
    EXPECT_TRUE(session->canValidate());
    EXPECT_EQ(counts(state).answered, 100);
    EXPECT_TRUE(window.messages.empty()); // so the test never counts as complete
}

using Closing = ExerciseCase;

TEST_F(Closing, asksWhileQuestionsAreLeft) {
    writeBoxes(2);
    open();
    answer(false);
    window.answers = {false, true};
    EXPECT_FALSE(session->close());
    shared.ExerciseReturnPage = 5;
    EXPECT_EQ(verdict(1), -1);
    EXPECT_TRUE(window.returnToTest);
    EXPECT_TRUE(session->close());
    const Message question{u"Fermer", u"Voulez-vous vraiment abandonner le test?"};
    EXPECT_EQ(window.messages, std::vector({question, question}));
    EXPECT_EQ(shared.PendingExerciseChapter, 0);
    EXPECT_EQ(shared.ExerciseReturnPage, 0);
    EXPECT_EQ(state.CurrentQuestion, 1);
    EXPECT_EQ(counts(state).answered, 0);
    EXPECT_FALSE(window.returnToTest);
}

TEST_F(Closing, aTestLeftForAPageGoesOnThere) {
    writeBoxes(3);
    open();
    answer(false);
    session->next();
    session->leaveFor(u"012");
    EXPECT_EQ(shared.ExerciseReturnPage, 12);
    EXPECT_TRUE(session->close()); // the window goes, the test does not
    EXPECT_TRUE(window.messages.empty() && window.returnToTest);

    window = {};
    open();
    EXPECT_EQ(shared.ExerciseReturnPage, 0);
    EXPECT_EQ(window.caption, u"Question 2 / 3 :");
    EXPECT_TRUE(window.score);
    session->previous();
    EXPECT_EQ(window.marks(ChoiceArray::Check1), u"+    ");
}

TEST_F(Closing, aTagThatIsNoPageLeadsNowhere) {
    writeBoxes(1);
    const std::pair<const char16_t*, int> rows[] = {{u"0", 0},     {u"", 0},          {u"page", 0},
                                                    {u"99999", 0}, {u"32767", 32767}, {u"-5", -5}};
    for (const auto& [tag, page] : rows) {
        open();
        session->leaveFor(tag);
        EXPECT_EQ(shared.ExerciseReturnPage, page) << text::toUtf8(tag);
    }
}

} // namespace
} // namespace exercises::test
