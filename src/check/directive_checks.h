#pragma once

#include "check/rule.h"

namespace check {

// Directives: whether a line has a form, and whether what follows the keyword is what the form
// reads.

void unknownDirective(const Source& source, const Line& line, Findings& findings);
void wholeDirectiveWithMore(const Source& source, const Line& line, Findings& findings);
void textAfterBareDirective(const Source& source, const Line& line, Findings& findings);
void tooFewDigits(const Source& source, const Line& line, Findings& findings);
void tooManyDigits(const Source& source, const Line& line, Findings& findings);
void notANumber(const Source& source, const Line& line, Findings& findings);
void factorOfZero(const Source& source, const Line& line, Findings& findings);
void valueWithoutEffect(const Source& source, const Line& line, Findings& findings);
void prefixAccident(const Source& source, const Line& line, Findings& findings);
void missingSharp(const Source& source, const Line& line, Findings& findings);
void missingArgument(const Source& source, const Line& line, Findings& findings);
void wrongSigns(const Source& source, const Line& line, Findings& findings);
void unknownSurface(const Source& source, const Line& line, Findings& findings);
void misplacedMark(const Source& source, const Line& line, Findings& findings);
void directiveElsewhere(const Source& source, const Line& line, Findings& findings);

} // namespace check
