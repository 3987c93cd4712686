#pragma once

#include "common/simulation.h"
#include "common/simulation_window.h"
#include "lens/bench.h"

namespace lens {

using Opening = common::ExerciseOpening<Exercise>;

/// The optical bench: controls at the left, drawing, measures and relations at the right.
class MainWindow : public common::ModelWindow<Bench, Exercise> {
public:
    explicit MainWindow(const Opening& opening);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* drawing();
    QWidget* foot();
};

/// Module 2.
common::SimulationKind simulationKind();

} // namespace lens
