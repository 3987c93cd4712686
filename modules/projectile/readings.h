#pragma once

#include "common/reading.h"
#include "look/accessible_role.h"
#include "projectile/experiment.h"

#include <QWidget>

namespace projectile {

/// Two lines of numbers: the moment shown, and the flight as a whole; four in a narrow window.
/// Those of the flight can be withheld, for an exercise that asks for them.
class Readings : public QWidget, public look::ToldInWords {
public:
    explicit Readings(Experiment& experiment, QWidget* parent = nullptr);

    void setFlightHidden(bool hidden);

    QString toldInWords() const override;

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;

private:
    common::ReadingGroup atMoment() const;
    common::ReadingGroup ofFlight() const;

    Experiment& experiment_;
    bool flightHidden_ = false;
};

} // namespace projectile
