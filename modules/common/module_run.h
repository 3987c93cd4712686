#pragma once

#include "common/end_watch.h"
#include "common/status_record.h"

namespace common {

/// One run of a module's program, from its start to its end: for as long as it lives, the module's
/// record says "OUI". Made by main after the application and before any window; the destructor says
/// "NON" however the event loop was left (window closed, signal, posted quit).
///
/// A second start simply runs, too: the shell brings the first window to the front instead of
/// starting another, so only somebody who wants two opens two. The first of them that ends says
/// "NON", and the shell then starts a new one: nothing is lost by that.
class ModuleRun {
public:
    /// `module`: 1 to 30. The status file is the one that the shell names, or else lies beside the
    /// program.
    explicit ModuleRun(int module);
    ~ModuleRun();

    ModuleRun(const ModuleRun&) = delete;
    ModuleRun& operator=(const ModuleRun&) = delete;

    const StatusRecord& record() const { return record_; }

    /// Directory of the program, where the course and its exercises are.
    static QString directory();

private:
    EndWatch endWatch_; ///< before the record: what ends the process must find it already watched
    StatusRecord record_;
};

/// Title of a module's window: "Liens utiles - Orvalente, module 07". The shell finds the window by
/// its end when it closes.
QString windowTitle(const QString& name, int module);

} // namespace common
