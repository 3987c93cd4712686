#pragma once

#include "projectile/experiment.h"

#include <QWidget>

namespace look {
class Button;
}

class QButtonGroup;

namespace projectile {

/// The controls of the launch, and the buttons that keep paths for comparison.
class LaunchPanel : public QWidget {
public:
    explicit LaunchPanel(Experiment& experiment, QWidget* parent = nullptr);

private:
    /// A number of the launch with its controls.
    QWidget* row(Parameter parameter);
    QWidget* worlds();
    QWidget* drags();
    QWidget* keepButtons();
    void show();

    Experiment& experiment_;
    QButtonGroup* worlds_ = nullptr;
    QButtonGroup* drags_ = nullptr;
    QWidget* diameter_ = nullptr;
    QWidget* coefficient_ = nullptr;
    QWidget* noDrag_ = nullptr;
    look::Button* keep_ = nullptr;
    look::Button* forget_ = nullptr;
};

} // namespace projectile
