#pragma once

#include "projectile/experiment.h"

#include <QWidget>

namespace projectile {

/// The laws of the motion shown, with its numbers.
class FormulaPage : public QWidget {
public:
    explicit FormulaPage(Experiment& experiment, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent*) override;

private:
    void fit();

    Experiment& experiment_;
};

/// A heading (without a formula) or a formula with what it is called.
struct Law {
    QString words;
    QString formula;
};

/// The laws that hold for a flight, in the order of their derivation.
std::vector<Law> lawsOf(const Flight& flight);

} // namespace projectile
