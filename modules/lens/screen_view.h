#pragma once

#include "lens/bench.h"

#include <QImage>
#include <QWidget>

namespace lens {

/// What is seen on the screen, by somebody who looks from the lens: the object, a luminous letter,
/// each of whose points the lens spreads over a spot.
class ScreenView : public QWidget {
public:
    explicit ScreenView(Bench& bench, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent*) override;

private:
    QImage picture(double side) const;
    void show();

    Bench& bench_;
};

} // namespace lens
