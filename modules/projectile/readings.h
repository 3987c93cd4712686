#pragma once

#include "look/accessible_role.h"
#include "projectile/experiment.h"

#include <QWidget>

namespace projectile {

/// Two lines of numbers: the moment shown, and the flight as a whole; four in a narrow window.
class Readings : public QWidget, public look::ToldInWords {
public:
    explicit Readings(Experiment& experiment, QWidget* parent = nullptr);

    QString toldInWords() const override;

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;

private:
    Experiment& experiment_;
};

} // namespace projectile
