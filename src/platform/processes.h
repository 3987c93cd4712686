#pragma once

#include <QHash>
#include <QString>

#include <optional>

namespace platform {

/// Why a program could not be started.
enum class StartFailure {
    Missing,     ///< no file of that name, in whatever letter case
    NeedsWine,   ///< a Windows program, and Wine is not installed
    LeadsOut,    ///< a link to a program outside the directory
    SixteenBit,  ///< a DOS or 16-bit Windows program, which nothing here can run
    NotAProgram, ///< the file is no program of a known kind
    Refused,     ///< the system would not run it (for example: no right to execute it)
};

/// What became of a start: `pid` when there is a process, `failure` when there is none.
struct StartResult {
    /// Identifier of the new process. For a Windows program that runs through Wine it is the
    /// identifier of Wine's own first process, which is not the owner of the program's windows.
    std::optional<qint64> pid;
    /// Says why when `pid` is absent; without meaning otherwise.
    StartFailure failure = StartFailure::Missing;
};

/// Names and values of variables that a program finds in its environment, besides our own.
using ProgramVariables = QHash<QString, QString>;

/// Starts programs that live on by themselves. None inherits a file that we have open.
class ProcessStarter {
public:
    virtual ~ProcessStarter() = default;

    /// Starts `program`, a directory and a bare file name, with its own directory as the current
    /// one. The file name is found without regard to letter case; a link counts only while the
    /// program that it leads to stands in the directory or below. Returns as soon as the process
    /// exists; what it does afterwards, its windows included, is not waited for.
    virtual StartResult start(const QString& program, const ProgramVariables& variables = {}) = 0;

    /// The same, in a maximised window with the focus where the system lets the one who starts a
    /// program choose that; elsewhere the program and the window manager do.
    virtual StartResult startMaximized(const QString& program) { return start(program); }
};

/// Brings windows of other programs to the front.
class WindowActivator {
public:
    virtual ~WindowActivator() = default;

    /// Activates the main window of the process `pid`, or, when no window belongs to it, a window
    /// of the program with the file name `programName` ("Simu23.exe", any letter case). False,
    /// and nothing else, when there is no such window or no window system to ask.
    virtual bool activate(qint64 pid, const QString& programName) = 0;
};

} // namespace platform
