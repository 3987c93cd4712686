#include "exercises/test_state.h"

namespace exercises {

bool isAnswered(const TestState& test, int question) {
    return test.QuestionState.valueOr(question, 0) != 0;
}

bool isUnanswered(const TestState& test, int question) {
    return test.QuestionState.valueOr(question, 1) == 0;
}

bool isAnsweredWrong(const TestState& test, int question) {
    return test.QuestionState.valueOr(question, 0) == -1;
}

Counts counts(const TestState& test) {
    Counts found;
    for (int question = 1; question <= test.QuestionCount; ++question) {
        const int state = test.QuestionState.valueOr(question, 0);
        found.answered += state != 0;
        found.right += state == 1;
    }
    return found;
}

std::optional<std::int16_t> nextUnanswered(const TestState& test) {
    int question = test.CurrentQuestion + 1;
    while (question <= test.QuestionCount && isAnswered(test, question))
        ++question;
    if (question <= test.QuestionCount)
        return static_cast<std::int16_t>(question);
    for (question = 1; question <= test.QuestionCount; ++question)
        if (isUnanswered(test, question))
            return static_cast<std::int16_t>(question);
    return std::nullopt;
}

void forgetAnswers(TestState& test) {
    test.CurrentQuestion = 1;
    for (int i = test.QuestionState.first; i <= test.QuestionState.last; ++i)
        test.QuestionState.store(i, 0);
}

} // namespace exercises
