#pragma once

#include "common/opening.h"
#include "common/task.h"

#include <QMainWindow>

class QVBoxLayout;

namespace common {

/// The window of a simulation: controls at the left, what is seen at the right, above it the task
/// of an exercise. The keyboard is with the window itself until somebody goes elsewhere.
class SimulationWindow : public QMainWindow {
protected:
    /// `task` is that of the opening's exercise, null without one.
    SimulationWindow(const QString& name, int module, const Opening& opening, const Task* task);

    /// To be called once at the end of the constructor, with what stands at the left, and at the
    /// right from above; `main` is the one of these that takes what room there is.
    void arrange(QWidget* controls, std::initializer_list<QWidget*> views, const QWidget* main);

    /// Called after a right answer.
    virtual void showResults() {}

private:
    QWidget* left(QWidget* controls) const;

    QString edition_;
    bool hasTask_;
    QVBoxLayout* right_;
};

/// A widget whose parts stand one below the other, without margins.
QVBoxLayout* column(QWidget* widget);

} // namespace common
