#pragma once

#include "projectile/experiment.h"

#include <QWidget>

class QButtonGroup;
class QPushButton;

namespace projectile {

/// The controls of the launch, and the buttons that keep paths for comparison.
class LaunchPanel : public QWidget {
    Q_OBJECT

public:
    explicit LaunchPanel(Experiment& experiment, QWidget* parent = nullptr);

private:
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
    QPushButton* keep_ = nullptr;
    QPushButton* forget_ = nullptr;
};

} // namespace projectile
