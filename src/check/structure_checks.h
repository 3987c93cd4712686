#pragma once

#include "check/rule.h"

namespace check {

// What belongs together over several lines.

void unendedLine(const Source& source, Findings& findings);
void lostShift(const Source& source, Findings& findings);
void openTable(const Source& source, Findings& findings);
void rowWithoutCell(const Source& source, Findings& findings);
void cellsOutOfOrder(const Source& source, Findings& findings);
void cellEdges(const Source& source, Findings& findings);
void fractionOutOfOrder(const Source& source, Findings& findings);
void rootOutOfOrder(const Source& source, Findings& findings);
void lostCaptionLine(const Source& source, Findings& findings);

} // namespace check
