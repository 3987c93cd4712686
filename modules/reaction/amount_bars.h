#pragma once

#include "reaction/experiment.h"

#include <QWidget>

namespace common {
class Axes;
}

namespace reaction {

/// The amounts as bars: what is there is filled, what a reactant was at the start or a product will
/// be at the end is an outline.
class AmountBars : public QWidget {
public:
    explicit AmountBars(Experiment& experiment, QWidget* parent = nullptr);

    QSize minimumSizeHint() const override { return {320, 160}; }

protected:
    void paintEvent(QPaintEvent*) override;

private:
    double most() const;
    void paintBar(QPainter& painter, const common::Axes& axes, std::size_t species) const;
    void paintName(QPainter& painter, const common::Axes& axes, std::size_t species) const;
    /// Room of a species across, pixels; its middle stands at `middle`.
    double room(const common::Axes& axes) const;
    double middle(const common::Axes& axes, std::size_t species) const;
    void show();

    Experiment& experiment_;
};

} // namespace reaction
