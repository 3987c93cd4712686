#pragma once

#include "check/rule.h"

namespace check {

// The pages of a course beside each other: numbers, reading order, what is printed together.

void duplicateNumber(const Course& course, Findings& findings);
void duplicateOrder(const Course& course, Findings& findings);
void gapInOrder(const Course& course, Findings& findings);
void neighbourMissing(const Course& course, Findings& findings);
void numberBeyondCodes(const Course& course, Findings& findings);
void noFirstPage(const Course& course, Findings& findings);
void emptyPrintRange(const Course& course, Findings& findings);
void printRangeWithHoles(const Course& course, Findings& findings);
void printRangeCrossesUnprintable(const Course& course, Findings& findings);
void pageWithoutTitle(const Course& course, Findings& findings);

} // namespace check
