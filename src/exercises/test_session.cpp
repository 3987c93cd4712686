#include "exercises/test_session.h"

#include "exercises/answer_check.h"
#include "exercises/progress_strip.h"
#include "exercises/score.h"
#include "text/number_text.h"
#include "text/numeric_reader.h"
#include "text/rounding.h"

namespace exercises {

namespace {

/// How many bands a strip without questions is painted with.
constexpr std::int16_t kCountOfAnEmptyStrip = 2;

constexpr std::int16_t kRight = 1;
constexpr std::int16_t kWrong = -1;

} // namespace

TestSession::TestSession(SharedWithCourse shared, TestState& test, TestRecords& records,
                         TestView& view, AnswerControls& controls, CourseWindow& course)
    : shared_(shared), test_(test), records_(records), view_(view), controls_(controls),
      course_(course) {}

void TestSession::load() {
    open_ = true;
    shared_.ExerciseReturnPage = 0;
    view_.setScoreVisible(false);
    const TestDescription found = records_.describe(shared_.PendingExerciseChapter);
    if (found.title)
        view_.setTitle(*found.title);
    if (found.count)
        test_.QuestionCount = *found.count;
    if (test_.CurrentQuestion == 0 || test_.CurrentQuestion > test_.QuestionCount)
        test_.CurrentQuestion = 1;
    // A test that was left shows the face of its answers again.
    view_.setFace(smileLevel(counts(test_)).value_or(kNeutralFace));
}

void TestSession::activate() {
    tritexte();
    refreshStrip();
}

void TestSession::tritexte() {
    const std::int16_t question = test_.CurrentQuestion;
    const std::int16_t count = test_.QuestionCount;
    if (count > 0)
        view_.placeMarker(question, count);
    view_.setPreviousVisible(question != 1);
    view_.setNextVisible(question != count);
    view_.setCaption(u"Question" + text::numberText(question) + u" /" + text::numberText(count) +
                     u" :");
    findRecord();
    majquest();
}

void TestSession::findRecord() {
    records_.moveTo(shared_.PendingExerciseChapter, test_.CurrentQuestion);
}

void TestSession::majquest() {
    const int question = test_.CurrentQuestion;
    view_.misanet();
    std::u16string source = records_.question();
    if (isAnsweredWrong(test_, question))
        source += records_.siFaux();
    view_.drawQuestion(source);
    setValidateVisible(!isAnswered(test_, question));
    view_.setVerdict(verdictShown());
    view_.offerSummary(isComplete());
    if (isAnswered(test_, question))
        dejarepondu();
}

std::optional<Verdict> TestSession::verdictShown() const {
    const int question = test_.CurrentQuestion;
    if (!isAnswered(test_, question))
        return std::nullopt;
    if (!isAnsweredWrong(test_, question))
        return Verdict{true, {}};
    const bool typed = records_.type() == 3;
    return Verdict{false, typed ? records_.solution().value_or(u"") : u""};
}

void TestSession::dejarepondu() {
    switch (records_.type()) {
    case 1:
        return correctChoices(ChoiceArray::Check1);
    case 2:
        return correctChoices(ChoiceArray::Option1);
    case 3:
        controls_.disableTypedText();
        controls_.setTypedText(test_.GivenAnswers.valueOr(test_.CurrentQuestion, {}));
        controls_.markTypedText(isAnsweredWrong(test_, test_.CurrentQuestion) ? Mark::NotInSolution
                                                                              : Mark::InSolution);
    }
}

void TestSession::correctChoices(ChoiceArray array) {
    const auto solution = records_.solution();
    const std::u16string given = test_.GivenAnswers.valueOr(test_.CurrentQuestion, {});
    for (int i = 0; i < kChoices; ++i) {
        controls_.disable(array, i);
        const auto mark = markOf(solution, i);
        if (mark && controls_.isVisible(array, i))
            controls_.paintMark(array, i, *mark);
        controls_.setSelected(array, i, isSelectedIn(given, i));
    }
}

void TestSession::previous() {
    if (test_.CurrentQuestion >= 2)
        --test_.CurrentQuestion;
    tritexte();
}

void TestSession::next() {
    if (test_.CurrentQuestion <= test_.QuestionCount - 1)
        ++test_.CurrentQuestion;
    tritexte();
}

void TestSession::choose(double y, double height) {
    const auto question = questionAt(y, test_.QuestionCount, height);
    if (!question)
        return;
    test_.CurrentQuestion = *question;
    tritexte();
}

void TestSession::prochainval() {
    const auto question = nextUnanswered(test_);
    if (!question)
        return;
    test_.CurrentQuestion = *question;
    tritexte();
}

bool TestSession::isComplete() const {
    return test_.QuestionCount > 0 && counts(test_).answered == test_.QuestionCount;
}

std::vector<WrongAnswer> TestSession::wrongAnswers() {
    std::vector<WrongAnswer> wrong;
    for (int question = 1; question <= test_.QuestionCount; ++question) {
        if (!isAnsweredWrong(test_, question))
            continue;
        records_.moveTo(shared_.PendingExerciseChapter, static_cast<std::int16_t>(question));
        wrong.push_back({question, records_.type(), records_.question(), records_.siFaux(),
                         test_.GivenAnswers.valueOr(question, {}),
                         records_.solution().value_or(u"")});
    }
    findRecord();
    return wrong;
}

void TestSession::chooseQuestion(std::int16_t question) {
    if (question < 1 || question > test_.QuestionCount)
        return;
    test_.CurrentQuestion = question;
    tritexte();
}

void TestSession::retakeTest() {
    forgetAnswers(test_);
    beginAgain();
}

void TestSession::retakeWrong() {
    for (int question = test_.QuestionCount; question >= 1; --question) {
        if (!isAnsweredWrong(test_, question))
            continue;
        test_.QuestionState.store(question, 0);
        test_.CurrentQuestion = static_cast<std::int16_t>(question);
    }
    beginAgain();
}

void TestSession::beginAgain() {
    const Counts left = counts(test_);
    view_.setScoreVisible(left.answered > 0);
    view_.setFace(smileLevel(left).value_or(kNeutralFace));
    activate();
}

bool TestSession::close() {
    if (!open_)
        return true;
    const bool complete = counts(test_).answered == test_.QuestionCount;
    if (!complete && !view_.ask({u"Fermer", u"Voulez-vous vraiment abandonner le test?"}))
        return false;
    open_ = false;
    shared_.PendingExerciseChapter = 0;
    shared_.ExerciseReturnPage = 0;
    forgetAnswers(test_);
    course_.hideReturnToTest();
    return true;
}

void TestSession::leaveFor(std::u16string_view tag) {
    open_ = false;
    shared_.ExerciseReturnPage = text::toInt16(text::leadingNumber(tag)).value_or(0);
}

void TestSession::refreshStrip() {
    if (test_.QuestionCount == 0)
        test_.QuestionCount = kCountOfAnEmptyStrip;
    if (counts(test_).answered > 0)
        view_.setScoreVisible(true);
    view_.repaintStrip();
}

void TestSession::setValidateVisible(bool visible) {
    validateVisible_ = visible;
    view_.setValidateVisible(visible);
}

void TestSession::validate() {
    if (!validateVisible_)
        return;
    view_.setScoreVisible(true);
    setValidateVisible(false);
    if (verdict())
        showRight();
    else
        showWrong();
}

bool TestSession::verdict() {
    switch (records_.type()) {
    case 1:
        return choiceVerdict(ChoiceArray::Check1);
    case 2:
        return choiceVerdict(ChoiceArray::Option1);
    case 3: {
        const std::u16string typed = controls_.typedText();
        test_.GivenAnswers.store(test_.CurrentQuestion, typed);
        return castexte(records_.solution().value_or(u""), typed);
    }
    default: // nothing fits a question of no known type
        return false;
    }
}

bool TestSession::choiceVerdict(ChoiceArray array) {
    Selection selection{};
    for (int i = 0; i < kChoices; ++i)
        selection[static_cast<std::size_t>(i)] = controls_.isSelected(array, i);
    const std::u16string code = choiceCode(selection);
    test_.GivenAnswers.store(test_.CurrentQuestion, code);
    return code == records_.solution();
}

void TestSession::showRight() {
    test_.QuestionState.store(test_.CurrentQuestion, kRight);
    refreshStrip();
    popUpRightAnswer();
    if (open_)
        affsmile();
    if (open_)
        prochainval();
    // After a wrong answer its comment is read first.
    if (open_ && isComplete())
        view_.showSummary();
}

void TestSession::showWrong() {
    test_.QuestionState.store(test_.CurrentQuestion, kWrong);
    refreshStrip();
    affsmile();
    if (open_)
        majquest();
}

void TestSession::popUpRightAnswer() {
    view_.setMarkerVisible(false);
    view_.showRightAnswer();
    view_.setMarkerVisible(true);
}

void TestSession::affsmile() {
    const Counts found = counts(test_);
    const auto face = smileLevel(found);
    if (!face)
        return;
    view_.setFace(*face);
    if (found.answered == test_.QuestionCount)
        showScore();
}

void TestSession::repbon() {
    affsmile();
    popUpRightAnswer();
    view_.focusStrip();
}

void TestSession::showScore() {
    view_.tell(scoreMessage(counts(test_), test_.QuestionCount));
}

} // namespace exercises
