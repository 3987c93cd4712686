#pragma once

#include "text/bounded_array.h"

#include <cstdint>
#include <optional>
#include <string>

namespace exercises {

/// What the test shares with the other windows, which keep it.
struct SharedWithCourse {
    std::int16_t& PendingExerciseChapter; ///< the test's chapter; 0 for no test
    std::int16_t& ExerciseReturnPage;     ///< page to show afterwards; 0 for none
};

/// Where the test in progress stands beside that. One for the whole program: it outlives the
/// window, so that a test which was left for a course page goes on.
struct TestState {
    std::int16_t CurrentQuestion = 0; ///< number, from 1, of the question shown; 0 before any test
    /// As the database has it: nothing keeps it from being 0, negative or above 100.
    std::int16_t QuestionCount = 0;
    /// By question number: 0 not answered, 1 right, -1 wrong. Slot 0 is never used. Questions above
    /// 100 have no slot: they can be answered, but nothing is kept of it.
    text::BoundedArray<std::int16_t, 0, 100> QuestionState;
    /// By question number: the choice code or the typed text, as it stood at validation.
    text::BoundedArray<std::u16string, 0, 100> GivenAnswers;
};

// A question without a slot is neither answered nor unanswered: what compares its state is
// abandoned.
bool isAnswered(const TestState& test, int question);
bool isUnanswered(const TestState& test, int question);
bool isAnsweredWrong(const TestState& test, int question);

/// How many of questions 1 to `QuestionCount` are answered, and how many of these are right.
struct Counts {
    int answered = 0;
    int right = 0;
};
Counts counts(const TestState& test);

/// The first question after the current one that is not answered, otherwise the first of all.
std::optional<std::int16_t> nextUnanswered(const TestState& test);

/// Back to the first question, none answered. Given answers are kept: none is looked at before it
/// has been replaced.
void forgetAnswers(TestState& test);

} // namespace exercises
