#pragma once

#include "projectile/experiment.h"

#include <QWidget>

namespace projectile {

/// Two lines of numbers: the moment shown, and the flight as a whole; four in a narrow window.
/// Those of the flight can be withheld, for an exercise that asks for them.
class Readings : public QWidget {
public:
    explicit Readings(Experiment& experiment, QWidget* parent = nullptr);

    void setFlightHidden(bool hidden);

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;

private:
    Experiment& experiment_;
    bool flightHidden_ = false;
};

} // namespace projectile
