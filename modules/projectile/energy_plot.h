#pragma once

#include "projectile/experiment.h"

#include <QWidget>

namespace projectile {

/// Kinetic, potential and mechanical energy over time.
class EnergyPlot : public QWidget {
public:
    explicit EnergyPlot(Experiment& experiment, QWidget* parent = nullptr);

    QSize minimumSizeHint() const override { return {320, 160}; }

protected:
    void paintEvent(QPaintEvent*) override;

private:
    Experiment& experiment_;
};

} // namespace projectile
