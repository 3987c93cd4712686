#include "platform/system_program_windows.h"

namespace platform {

namespace {

class NoProgramWindows : public ProgramWindows {
public:
    std::vector<ProgramWindow> list() const override { return {}; }
    WindowOwner owner(quint64) const override { return {}; }
    void postQuit(quint64) override {}
};

} // namespace

std::unique_ptr<ProgramWindows> systemProgramWindows() {
    return std::make_unique<NoProgramWindows>();
}

} // namespace platform
