#pragma once

#include "exercises/test_records.h"
#include "exercises/test_state.h"
#include "exercises/test_summary.h"
#include "exercises/test_view.h"

#include <string_view>
#include <vector>

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

    TestSession(SharedWithCourse shared, TestState& test, TestRecords& records, TestView& view,
                AnswerControls& controls, CourseWindow& course);

    /// Opens the test of `PendingExerciseChapter`. A chapter without a test leaves title and count
    /// as they were.
    void load();
    /// Goes on where the test is after the records were opened anew.
    void findRecord();
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
    static char16_t typedCharacter(char16_t c) { return c == u'.' ? u',' : c; }

    void affsmile(); ///< the face for the answers so far; when all are given, the score too
    void repbon();   ///< the face and the popup of a right answer
    void showScore();

    /// Whether every question of the test has been answered.
    bool isComplete() const;
    /// What the summary is about, in the order of the questions.
    std::vector<WrongAnswer> wrongAnswers();
    void chooseQuestion(std::int16_t question);
    /// Ends the test and begins it anew, on its first question; nothing is asked, since whoever
    /// wants this has answered all of it.
    void retakeTest();
    /// The same, with what was right taken over: the wrong questions are open again, and the score
    /// goes on counting the others.
    void retakeWrong();

    /// Ends the test, after asking when questions are left. False when the person goes on with it;
    /// otherwise, and when the test was left before, the window may close.
    bool close();
    /// Leaves the test for the course page in a link's tag; the window is to close then. A tag that
    /// reads 0, or as no 16-bit number, leads to no page.
    void leaveFor(std::u16string_view tag);

private:
    bool verdict();
    bool choiceVerdict(ChoiceArray array);
    void showRight();
    void showWrong();
    void dejarepondu();
    std::optional<Verdict> verdictShown() const;
    void correctChoices(ChoiceArray array);
    void popUpRightAnswer();
    void refreshStrip();
    void beginAgain();
    void setValidateVisible(bool visible);

    SharedWithCourse shared_;
    TestState& test_;
    TestRecords& records_;
    TestView& view_;
    AnswerControls& controls_;
    CourseWindow& course_;
    bool validateVisible_ = false;
    bool open_ = false;
};

} // namespace exercises
