#pragma once

#include "common/simulation.h"
#include "common/simulation_window.h"
#include "reaction/experiment.h"

namespace reaction {

using Opening = common::ExerciseOpening<Exercise>;

/// Two reactants that react until one of them is used up: controls at the left, bars, table and
/// calculation at the right.
class MainWindow : public common::ModelWindow<Experiment, Exercise> {
public:
    explicit MainWindow(const Opening& opening);
};

/// Module 10.
common::SimulationKind simulationKind();

} // namespace reaction
