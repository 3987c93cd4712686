#pragma once

#include "reaction/experiment.h"

#include <QWidget>

namespace reaction {

/// The equation of the reaction, and in words what limits it, framed.
class EquationView : public QWidget {
public:
    explicit EquationView(Experiment& experiment, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent*) override;

private:
    void show();

    Experiment& experiment_;
};

} // namespace reaction
