#pragma once

#include "common/task.h"

#include <QWidget>

#include <functional>
#include <utility>

namespace look {
class Button;
class TextField;
} // namespace look

class QLabel;

namespace common {

/// The task, a field for the answer, and what is to be said about it.
class ExercisePanel : public QWidget {
public:
    explicit ExercisePanel(const Task& task, QWidget* parent = nullptr);

    /// `show` is called after a right answer.
    void onSolved(std::function<void()> show) { solved_ = std::move(show); }

    /// After a right answer a button offers the next exercise; `next` is called when it is pressed.
    void onNext(std::function<void()> next) { next_ = std::move(next); }

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;

private:
    void check();
    void holdHeight();

    Task task_;
    look::TextField* field_;
    QWidget* sign_;
    QLabel* verdict_;
    look::Button* nextButton_;
    std::function<void()> solved_ = [] {};
    std::function<void()> next_; ///< null when this is the last
};

} // namespace common
