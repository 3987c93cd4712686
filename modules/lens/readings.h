#pragma once

#include "lens/bench.h"

#include <QWidget>

namespace lens {

/// Lines of numbers: object, lens, image, and the relation between them.
class Readings : public QWidget {
public:
    explicit Readings(Bench& bench, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent*) override;

private:
    void show();

    Bench& bench_;
};

} // namespace lens
