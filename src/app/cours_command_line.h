#pragma once

#include "app/subcommands/tool_run.h"

namespace app {

/// Reads the command line of `orvalente-cours` and does what it asks for; gives the exit status.
/// What is wrong with the call is told on standard error, faults of the course are left in the
/// report.
int runCoursCommandLine(ToolRun& run);

} // namespace app
