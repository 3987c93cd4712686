#pragma once

#include "projectile/experiment.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

namespace common {
class FormulaLabel;
class MeasuredSlider;
} // namespace common

namespace look {
class Button;
}

class QComboBox;

namespace projectile {

/// Start, pause, single steps, the time to pull at, and the rate. Has the only timer of the
/// program, which ticks only while the simulation runs.
class TransportBar : public QWidget {
public:
    explicit TransportBar(Experiment& experiment, QWidget* parent = nullptr);

    void toggle();
    void reset();
    void step(int pictures);

private:
    void addButtons();
    void addTime();
    void addRates();
    void show();
    void tick();
    double timeAt(int position) const;
    int positionAt(double time) const;

    Experiment& experiment_;
    look::Button* start_ = nullptr;
    common::MeasuredSlider* time_ = nullptr;
    common::FormulaLabel* reading_ = nullptr;
    QComboBox* rates_ = nullptr;
    QTimer timer_;
    QElapsedTimer clock_;
};

} // namespace projectile
