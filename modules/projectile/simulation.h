#pragma once

#include "common/status_record.h"
#include "projectile/main_window.h"

#include <memory>

namespace projectile {

/// The window of a run of the simulator, with the exercise that the course asks for.
class Simulation {
public:
    /// Opens the window; `directory` is where the exercises are.
    Simulation(const common::StatusRecord& record, QString directory);

    /// To be called whenever the program comes to the front. The course starts no running module
    /// anew: it writes the name of the exercise down and brings the module's window to the front.
    /// Another exercise than the one asked for last comes in a new window in the place of the old
    /// one; the record of other modules' exercises, and one that names none, changes nothing.
    void lookForExercise();

    MainWindow& window() const { return *window_; }

private:
    void open(const QString& exercise);

    common::StatusRecord record_;
    QString directory_;
    QString asked_; ///< name of the exercise that the course asked for last; empty for none
    std::unique_ptr<MainWindow> window_;
};

} // namespace projectile
