#pragma once

#include <QString>

namespace platform {

/// Says on standard error, behind the program's name, what whoever looks for a reason should find:
/// one line, whatever the words come from.
void tellOnTerminal(const QString& sentence);

} // namespace platform
