#pragma once

#include "common/about.h"
#include "common/opening.h"
#include "common/status_record.h"

#include <QWidget>

#include <memory>

namespace common {

/// What tells one simulation from another.
struct SimulationKind {
    int module;     ///< 1 to 30
    QString ending; ///< of its exercises' files: ".E21"
    /// Makes the module's window.
    std::unique_ptr<QWidget> (*makeWindow)(const Asked&);
};

/// The kind whose window is a `Window`, and whose exercises `parse` reads.
template <class Window, auto parse>
SimulationKind simulationKindOf(const About& about, const QString& ending) {
    return {about.module, ending, [](const Asked& asked) -> std::unique_ptr<QWidget> {
                return std::make_unique<Window>(openingOf(asked, parse));
            }};
}

/// The window of a run of a simulation, with the exercise that the course asks for.
class Simulation {
public:
    /// Opens the window; `directory` is where the exercises are.
    Simulation(SimulationKind kind, const StatusRecord& record, QString directory);

    /// To be called whenever the program comes to the front. The course starts no running module
    /// anew: it writes the name of the exercise down and brings the module's window to the front.
    /// Another exercise than the one asked for last comes in a new window in the place of the old
    /// one; the record of other modules' exercises, and one that names none, changes nothing.
    void lookForExercise();

    QWidget& window() const { return *window_; }

private:
    void open(const QString& exercise);
    QString exerciseAfter(const QString& exercise) const;

    SimulationKind kind_;
    StatusRecord record_;
    QString directory_;
    QString asked_; ///< name of the exercise that the course asked for last; empty for none
    std::unique_ptr<QWidget> window_;
};

/// The whole of a simulation's program, as its main function has it. Returns its exit code.
int runSimulation(int argc, char** argv, const SimulationKind& kind);

} // namespace common
