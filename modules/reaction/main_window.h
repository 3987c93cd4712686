#pragma once

#include "common/simulation.h"
#include "common/simulation_window.h"
#include "reaction/experiment.h"

class QTabWidget;

namespace common {
class TransportBar;
}

namespace reaction {

using Opening = common::ExerciseOpening<Exercise>;

/// Two reactants that react until one of them is used up: controls at the left, bars, table and
/// calculation at the right.
class MainWindow : public common::SimulationWindow {
public:
    explicit MainWindow(const Opening& opening);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showResults() override { experiment_.reveal(); }

private:
    QTabWidget* tabs();
    common::TransportBar* transport();

    Experiment experiment_;
    common::TransportBar* transport_ = nullptr;
};

/// Module 10.
common::SimulationKind simulationKind();

} // namespace reaction
