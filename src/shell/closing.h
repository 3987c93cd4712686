#pragma once

#include "platform/processes.h"
#include "platform/program_windows.h"
#include "shell/launcher.h"
#include "shell/shared_state.h"

namespace shell {

/// What happens behind the exit screen: the sibling programs that run are asked to quit, and the
/// companion program of the installation is started. Nothing here waits, and no failure is told.
///
/// A window is found by its title, but what it belongs to is asked to quit only when that is a
/// program that this shell has started or one that stands in the installation directory, or, for
/// the title of the help, the system's help viewer. A stranger's window may have any title, and
/// another shell has a help window of its own. A window that does not name its process is asked to
/// close (platform::ProgramWindows).
class Closing {
public:
    Closing(SharedState& state, const Launcher& launcher, platform::ProgramWindows& windows,
            platform::ProcessStarter& starter)
        : state_(state), launcher_(launcher), windows_(windows), starter_(starter) {}

    /// The program is to end afterwards. SharedState::ModuleNumber then holds what the status file
    /// said.
    void run();

private:
    void closeSiblingPrograms();
    void quitWindowsWith(QStringView fragment);
    bool mayQuit(const platform::WindowOwner& owner, bool isHelp) const;
    bool wasStartedHere(qint64 pid) const;

    SharedState& state_;
    const Launcher& launcher_;
    platform::ProgramWindows& windows_;
    platform::ProcessStarter& starter_;
};

} // namespace shell
