#pragma once

#include "platform/processes.h"

namespace platform {

/// Starts programs as processes of their own that outlive this one. Where the system is not
/// Windows, the first bytes of a file tell what it is, and a Windows program runs through Wine.
class QtProcesses : public ProcessStarter {
public:
    StartResult start(const QString& program, const ProgramVariables& variables = {}) override;
#ifdef Q_OS_WIN
    StartResult startMaximized(const QString& program) override;
#endif
};

} // namespace platform
