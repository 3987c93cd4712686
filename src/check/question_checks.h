#pragma once

#include "check/rule.h"

namespace check {

// Tests: questions, their fields and their solutions.

void unknownQuestionType(const Course& course, Findings& findings);
void fieldsOfAnotherType(const Course& course, Findings& findings);
void tooManyChoices(const Course& course, Findings& findings);
void malformedSolution(const Course& course, Findings& findings);
void solutionWithoutField(const Course& course, Findings& findings);
void solutionNobodyCanGive(const Course& course, Findings& findings);
void answerThatNeverFits(const Course& course, Findings& findings);
void numberAsAnswer(const Course& course, Findings& findings);
void questionCount(const Course& course, Findings& findings);
void questionWithoutTest(const Course& course, Findings& findings);

} // namespace check
