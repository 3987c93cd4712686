#pragma once

#include "reaction/experiment.h"

#include <QWidget>

#include <array>

namespace common {
class NumberRow;
}

namespace look {
class Button;
}

class QComboBox;

namespace reaction {

/// The controls of the mixture: which reaction, how much of each reactant.
class MixturePanel : public QWidget {
public:
    explicit MixturePanel(Experiment& experiment, QWidget* parent = nullptr);

private:
    QWidget* reactions();
    common::NumberRow* row(std::size_t reactant);
    void show();

    Experiment& experiment_;
    QComboBox* reactions_ = nullptr;
    std::array<common::NumberRow*, kReactants> rows_ = {};
    look::Button* balance_ = nullptr;
};

} // namespace reaction
