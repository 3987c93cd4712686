#pragma once

#include "check/rule.h"

namespace check {

// What is seen once a page is really drawn.

void textBeyondMargin(const DrawnSource& drawn, Findings& findings);
void pictureBeyondMargin(const DrawnSource& drawn, Findings& findings);
void textBeyondCell(const DrawnSource& drawn, Findings& findings);
void textBelowFoot(const DrawnSource& drawn, Findings& findings);
void faintInk(const DrawnSource& drawn, Findings& findings);
void abandonedStatement(const DrawnSource& drawn, Findings& findings);
void titleTooLong(const Course& course, Findings& findings);

} // namespace check
