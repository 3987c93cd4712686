#pragma once

#include "platform/program_windows.h"

#include <memory>

namespace platform {

/// The windows of the system that the program was built for; none where it cannot tell of them.
std::unique_ptr<ProgramWindows> systemProgramWindows();

} // namespace platform
