#pragma once

#include "projectile/exercise.h"

#include <QWidget>

class QLabel;
class QLineEdit;

namespace projectile {

/// The task, a field for the answer, and what is to be said about it.
class ExercisePanel : public QWidget {
    Q_OBJECT

public:
    explicit ExercisePanel(const Exercise& exercise, QWidget* parent = nullptr);

Q_SIGNALS:
    void solved(); ///< a right answer was given

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;

private:
    void check();
    void holdHeight();

    Exercise exercise_;
    QLineEdit* field_;
    QWidget* sign_;
    QLabel* verdict_;
};

} // namespace projectile
