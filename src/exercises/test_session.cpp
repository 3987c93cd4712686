#include "exercises/test_session.h"

#include "exercises/progress_strip.h"
#include "page/numbers.h"
#include "text/rounding.h"

namespace exercises {

namespace {

/// How many bands a strip without questions is painted with.
constexpr std::int16_t kCountOfAnEmptyStrip = 2;

} // namespace

TestSession::TestSession(shell::SharedState& shared, TestState& test, TestView& view,
                         AnswerControls& controls, CourseWindow& course,
                         platform::Prompter& prompter)
    : shared_(shared), test_(test), view_(view), controls_(controls), course_(course),
      prompter_(prompter) {}

void TestSession::load(const coursedata::Recordset* description, coursedata::Recordset* contenu) {
    open_ = true;
    shared_.ExerciseReturnPage = 0;
    view_.setScoreVisible(false);
    const coursedata::TestDescription found =
        description ? coursedata::describeTest(*description, shared_.PendingExerciseChapter)
                    : coursedata::TestDescription();
    if (found.title)
        view_.setTitle(*found.title);
    if (found.count)
        test_.QuestionCount = *found.count;
    if (test_.CurrentQuestion == 0 || test_.CurrentQuestion > test_.QuestionCount)
        test_.CurrentQuestion = 1;
    // A test that was left shows the face of its answers again.
    view_.setFace(smileLevel(counts(test_)).value_or(kNeutralFace));
    record_ = coursedata::QuestionRecord(contenu);
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
    view_.setCaption(QStringLiteral("Question") + spacedNumber(question) + QStringLiteral(" /") +
                     spacedNumber(count) + QStringLiteral(" :"));
    findRecord();
    majquest();
}

void TestSession::findRecord() {
    record_.moveTo(
        coursedata::questionReference(shared_.PendingExerciseChapter, test_.CurrentQuestion));
}

void TestSession::reopen(coursedata::Recordset* contenu) {
    record_ = coursedata::QuestionRecord(contenu);
    findRecord();
}

void TestSession::majquest() {
    const int question = test_.CurrentQuestion;
    view_.misanet();
    QString source = record_.question();
    if (isAnsweredWrong(test_, question))
        source += record_.siFaux();
    view_.drawQuestion(source);
    setValidateVisible(!isAnswered(test_, question));
    if (isAnswered(test_, question))
        dejarepondu();
}

void TestSession::dejarepondu() {
    switch (record_.type()) {
    case 1:
        return correctChoices(ChoiceArray::Check1);
    case 2:
        return correctChoices(ChoiceArray::Option1);
    case 3:
        controls_.disableTypedText();
        controls_.setTypedText(test_.GivenAnswers.valueOr(test_.CurrentQuestion, {}));
    }
}

void TestSession::correctChoices(ChoiceArray array) {
    const auto solution = record_.solution();
    const QString given = test_.GivenAnswers.valueOr(test_.CurrentQuestion, {});
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

bool TestSession::close() {
    if (!open_)
        return true;
    const bool complete = counts(test_).answered == test_.QuestionCount;
    const platform::Message question{.title = QStringLiteral("Fermer"),
                                     .text =
                                         QStringLiteral("Voulez-vous vraiment abandonner le test?"),
                                     .icon = platform::Message::Icon::Question,
                                     .buttons = platform::Message::Buttons::YesNo};
    if (!complete && prompter_.ask(question) != platform::Answer::Yes)
        return false;
    open_ = false;
    shared_.PendingExerciseChapter = 0;
    shared_.ExerciseReturnPage = 0;
    forgetAnswers(test_);
    course_.hideReturnToTest();
    return true;
}

void TestSession::leaveFor(const QString& tag) {
    open_ = false;
    shared_.ExerciseReturnPage = text::toInt16(page::leadingNumber(tag)).value_or(0);
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

} // namespace exercises
