#pragma once

#include "platform/message_box.h"
#include "platform/processes.h"
#include "shell/report_sink.h"
#include "shell/shared_state.h"

#include <cstdint>

namespace shell {

/// File name of the program that a launch code starts; empty for a code that starts none.
QString programOfCode(std::int16_t code);

/// File name of the exercise that it carries; empty for none.
QString exerciseOfCode(std::int16_t code);

/// Starts the sibling programs ("modules") of the installation directory, and reads in the status
/// file which of them run. The file is found through SharedState::InstallDir at every call.
class Launcher {
public:
    Launcher(SharedState& state, platform::MessageBoxes& messageBoxes,
             platform::ProcessStarter& starter, platform::WindowActivator& activator,
             ReportSink& reports);

    /// Replaces a module number by what the status file says: -1 when the module itself runs
    /// (its record is anything but "NON"), otherwise how many of the modules 1 to 30 do.
    void queryModuleStatus(std::int16_t& module) const;

    /// Carries out the launch code `code`: ten times a module number and, in the last digit, an
    /// exercise of this module. Starts the module's program or brings it to the front, after a
    /// question when another module runs. A module that cannot be started is reported in a line,
    /// and so is a code without a program.
    void launchModule(std::int16_t code);

    /// Reports that the module with the file name `program` has no window to bring to the front.
    void reportHidden(const QString& program);

    /// Reports that the module with the file name `program` is open, and that the desktop lets
    /// nobody bring it to the front.
    void reportLeftBehind(const QString& program);

    /// Whether the status file lets the software be updated: all modules say "NON".
    bool updateIsPossible() const;

    /// The same; says so in a message box when it is not possible.
    bool confirmUpdateIsPossible() const;

private:
    void reportUnknown(std::int16_t code);
    bool mayStartBesideOthers() const;
    void start(std::int16_t module, const QString& program);
    void activate(std::int16_t module, const QString& program);

    SharedState& state_;
    platform::MessageBoxes& messageBoxes_;
    platform::ProcessStarter& starter_;
    platform::WindowActivator& activator_;
    ReportSink& reports_;
};

} // namespace shell
