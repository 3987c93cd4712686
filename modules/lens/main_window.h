#pragma once

#include "common/simulation.h"
#include "common/simulation_window.h"
#include "lens/bench.h"

class QTabWidget;

namespace lens {

class BenchPlot;

using Opening = common::ExerciseOpening<Exercise>;

/// The optical bench: controls at the left, drawing, measures and relations at the right.
class MainWindow : public common::SimulationWindow {
public:
    explicit MainWindow(const Opening& opening);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showResults() override { bench_.reveal(); }

private:
    QTabWidget* tabs();
    QWidget* drawingTab();
    QWidget* foot();

    Bench bench_;
    BenchPlot* plot_ = nullptr;
};

/// Module 2.
common::SimulationKind simulationKind();

} // namespace lens
