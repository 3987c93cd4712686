#pragma once

#include "platform/program_windows.h"

namespace test_support {

/// Windows of no program: keeps what was asked of them.
class FakeProgramWindows : public platform::ProgramWindows {
public:
    std::vector<platform::ProgramWindow> list() const override {
        ++reads;
        return windows;
    }
    void postQuit(quint64 id) override {
        quits.push_back(id);
        if (vanish)
            std::erase_if(windows, [id](const auto& window) { return window.id == id; });
    }

    std::vector<platform::ProgramWindow> windows;
    std::vector<quint64> quits;
    bool vanish = false; ///< whether a window goes when its program is asked to quit
    mutable int reads = 0;
};

} // namespace test_support
