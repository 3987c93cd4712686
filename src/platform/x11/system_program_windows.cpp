#include "platform/system_program_windows.h"

#include "platform/x11/x11_program_windows.h"

namespace platform {

std::unique_ptr<ProgramWindows> systemProgramWindows() {
    return std::make_unique<X11ProgramWindows>();
}

} // namespace platform
