#pragma once

#include "common/simulation.h"
#include "common/simulation_window.h"
#include "projectile/experiment.h"

namespace projectile {

using Opening = common::ExerciseOpening<Exercise>;

/// The simulator: controls at the left, drawing, table and formulas at the right.
class MainWindow : public common::ModelWindow<Experiment, Exercise> {
public:
    explicit MainWindow(const Opening& opening);
};

/// Module 23.
common::SimulationKind simulationKind();

} // namespace projectile
