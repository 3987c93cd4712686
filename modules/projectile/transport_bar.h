#pragma once

#include "projectile/experiment.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

class QComboBox;
class QLabel;
class QPushButton;
class QSlider;

namespace projectile {

/// Start, pause, single steps, the time to pull at, and the rate. Has the only timer of the
/// program, which ticks only while the simulation runs.
class TransportBar : public QWidget {
    Q_OBJECT

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

    Experiment& experiment_;
    QPushButton* start_ = nullptr;
    QSlider* time_ = nullptr;
    QLabel* reading_ = nullptr;
    QComboBox* rates_ = nullptr;
    QTimer timer_;
    QElapsedTimer clock_;
};

} // namespace projectile
