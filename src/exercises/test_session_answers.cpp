#include "exercises/answer_check.h"
#include "exercises/test_session.h"

#include <string_view>

namespace exercises {

namespace {

constexpr std::int16_t kRight = 1;
constexpr std::int16_t kWrong = -1;

std::u16string_view view(const QString& text) {
    return {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size())};
}

} // namespace

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
    switch (record_.type()) {
    case 1:
        return choiceVerdict(ChoiceArray::Check1);
    case 2:
        return choiceVerdict(ChoiceArray::Option1);
    case 3: {
        const QString typed = controls_.typedText();
        test_.GivenAnswers.store(test_.CurrentQuestion, typed);
        return castexte(view(record_.solution().value_or(QString())), view(typed));
    }
    default: // nothing fits a question of no known type
        return false;
    }
}

bool TestSession::choiceVerdict(ChoiceArray array) {
    Selection selection{};
    for (int i = 0; i < kChoices; ++i)
        selection[static_cast<std::size_t>(i)] = controls_.isSelected(array, i);
    const QString code = choiceCode(selection);
    test_.GivenAnswers.store(test_.CurrentQuestion, code);
    return code == record_.solution();
}

void TestSession::showRight() {
    test_.QuestionState.store(test_.CurrentQuestion, kRight);
    refreshStrip();
    popUpRightAnswer();
    if (open_)
        affsmile();
    if (open_)
        prochainval();
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
    prompter_.ask(scoreMessage(counts(test_), test_.QuestionCount));
}

} // namespace exercises
