#pragma once

#include "projectile/exercise.h"
#include "projectile/experiment.h"

#include <QMainWindow>

#include <functional>

namespace projectile {

class ExercisePanel;
class Readings;
class TrajectoryPlot;
class TransportBar;

/// What the window opens with.
struct Opening {
    std::optional<Exercise> exercise;
    QString notice;  ///< a line for the pupil, when the exercise asked for cannot be opened
    QString edition; ///< of the course; may be empty
    std::function<void()> next = {}; ///< opens the exercise after this one; null for the last
};

/// The simulator: controls at the left, drawing, table and formulas at the right.
class MainWindow : public QMainWindow {
public:
    explicit MainWindow(const Opening& opening);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* left(const QString& edition);
    QWidget* right(const Opening& opening);
    QWidget* trajectoryTab();

    Experiment experiment_;
    TrajectoryPlot* plot_ = nullptr;
    TransportBar* transport_ = nullptr;
    Readings* readings_ = nullptr;
};

} // namespace projectile
