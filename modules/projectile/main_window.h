#pragma once

#include "common/simulation.h"
#include "common/simulation_window.h"
#include "projectile/exercise.h"
#include "projectile/experiment.h"

class QTabWidget;

namespace common {
class TransportBar;
}

namespace projectile {

class TrajectoryPlot;

using Opening = common::ExerciseOpening<Exercise>;

/// The simulator: controls at the left, drawing, table and formulas at the right.
class MainWindow : public common::SimulationWindow {
public:
    explicit MainWindow(const Opening& opening);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showResults() override { experiment_.reveal(); }

private:
    QTabWidget* tabs();
    QWidget* trajectoryTab();
    common::TransportBar* transport();

    Experiment experiment_;
    TrajectoryPlot* plot_ = nullptr;
    common::TransportBar* transport_ = nullptr;
};

/// Module 23.
common::SimulationKind simulationKind();

} // namespace projectile
