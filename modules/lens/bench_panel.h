#pragma once

#include "lens/bench.h"

#include <QWidget>

namespace common {
class NumberRow;
}

namespace look {
class Button;
}

class QButtonGroup;

namespace lens {

/// The controls of the bench, and the buttons that take measures.
class BenchPanel : public QWidget {
public:
    explicit BenchPanel(Bench& bench, QWidget* parent = nullptr);

private:
    /// A number of the bench with its controls.
    common::NumberRow* row(Parameter parameter);
    QWidget* kinds();
    QWidget* measureButtons();
    void show();

    Bench& bench_;
    QButtonGroup* kinds_ = nullptr;
    common::NumberRow* focalLength_ = nullptr;
    QWidget* unknown_ = nullptr; ///< in the place of a withheld lens
    QWidget* kindRow_ = nullptr;
    look::Button* focus_ = nullptr;
    look::Button* measure_ = nullptr;
    look::Button* forget_ = nullptr;
};

} // namespace lens
