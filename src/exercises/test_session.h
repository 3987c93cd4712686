#pragma once

#include "coursedata/exercise_tables.h"
#include "coursedata/recordset.h"
#include "exercises/score.h"
#include "exercises/test_state.h"
#include "exercises/test_view.h"
#include "platform/message_box.h"
#include "shell/shared_state.h"

#include <QChar>
#include <QString>

namespace exercises {

/// One showing of the test's window, from its opening to its closing. The test itself is in the
/// states given, which outlive it: another session takes it up where this one left it.
///
/// Each question can be answered once. Boxes and popups shown in the course of a command let window
/// messages run; when the test is closed from there, the rest of the command is left out.
class TestSession {
public:
    /// The face of the marker until the first answer of the test.
    static constexpr int kNeutralFace = 4;

    TestSession(shell::SharedState& shared, TestState& test, TestView& view,
                AnswerControls& controls, CourseWindow& course, platform::Prompter& prompter);

    /// Opens the test of `PendingExerciseChapter` over its two tables, null for one that could not
    /// be opened; they must outlive the session. A chapter without a test leaves title and count as
    /// they were.
    void load(const coursedata::Recordset* description, coursedata::Recordset* contenu);
    /// Goes on over another recordset of "Contenu", opened anew; null for one that could not be
    /// opened. The test stays where it is.
    void reopen(coursedata::Recordset* contenu);
    /// The record of the question shown.
    coursedata::QuestionRecord& record() { return record_; }
    /// The window has come up: shows the current question. Once a showing: drawing it again would
    /// take away what has been ticked or typed.
    void activate();

    void tritexte(); ///< shows the current question, with what stands around it
    void majquest(); ///< draws the current record; when it has been answered, with its correction

    // Which question to show.
    void previous();
    void next();
    /// Chooses by a click on the strip, at `y` from the top of its inner `height`.
    void choose(double y, double height);
    void prochainval(); ///< the next question not yet answered

    /// Whether the current question can be validated: its picture is shown.
    bool canValidate() const { return validateVisible_; }
    /// Takes the answer from the controls and shows what it was worth; does nothing when the
    /// question has been validated. A click on the picture, and Enter in the answer box.
    void validate();
    /// What a character typed into the answer box becomes: "." is the decimal comma.
    static QChar typedCharacter(QChar c) { return c == u'.' ? QChar(u',') : c; }

    void affsmile(); ///< the face for the answers so far; when all are given, the score too
    void repbon();   ///< the face and the popup of a right answer
    void showScore();

    /// Ends the test, after asking when questions are left. False when the person goes on with it;
    /// otherwise, and when the test was left before, the window may close.
    bool close();
    /// Leaves the test for the course page in a link's tag; the window is to close then. A tag that
    /// reads 0, or as no 16-bit number, leads to no page.
    void leaveFor(const QString& tag);

private:
    void findRecord();
    bool verdict();
    bool choiceVerdict(ChoiceArray array);
    void showRight();
    void showWrong();
    void dejarepondu();
    void correctChoices(ChoiceArray array);
    void popUpRightAnswer();
    void refreshStrip();
    void setValidateVisible(bool visible);

    shell::SharedState& shared_;
    TestState& test_;
    TestView& view_;
    AnswerControls& controls_;
    CourseWindow& course_;
    platform::Prompter& prompter_;
    coursedata::QuestionRecord record_{nullptr};
    bool validateVisible_ = false;
    bool open_ = false;
};

} // namespace exercises
