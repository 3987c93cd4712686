#pragma once

#include "platform/message_box.h"
#include "platform/processes.h"

namespace platform {

/// Starts programs, and shows a box of the platform's own when that fails. Windows that say nothing
/// about a failure start programs through it, so that nobody waits for what will not come.
class ErrorBoxStarter : public ProcessStarter {
public:
    /// `starter` does the work; both must outlive this one.
    ErrorBoxStarter(ProcessStarter& starter, MessageBoxes& messageBoxes)
        : starter_(starter), messageBoxes_(messageBoxes) {}

    StartResult start(const QString& program, const ProgramVariables& variables = {}) override;
    StartResult startMaximized(const QString& program) override;

private:
    StartResult told(const QString& program, const StartResult& result);

    ProcessStarter& starter_;
    MessageBoxes& messageBoxes_;
};

} // namespace platform
