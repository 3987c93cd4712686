#pragma once

#include "check/rule.h"

namespace check {

// Where links lead, and how many a page can have.

void targetWithoutPage(const Course& course, Findings& findings);
void unreadableTarget(const Source& source, const Line& line, Findings& findings);
void targetWithoutTest(const Course& course, Findings& findings);
void targetWithoutProgram(const Source& source, const Line& line, Findings& findings);
void tooManyLinks(const Source& source, Findings& findings);
void menuEntries(const Source& source, Findings& findings);
void pageNobodyLeadsTo(const Course& course, Findings& findings);
void summaryWithoutPage(const Course& course, Findings& findings);

} // namespace check
