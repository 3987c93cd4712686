#pragma once

#include "exercises/right_answer_blink.h"
#include "look/icon.h"

#include <QDialog>
#include <QPixmap>
#include <QTimer>

namespace exercises {

/// `Cjuste`: the popup after a right answer, in the middle of the test's window and modal to it.
/// exec() returns when it has blinked, or when it is closed meanwhile.
class Cjuste : public QDialog {
public:
    explicit Cjuste(QWidget* window);

    /// Milliseconds between two pictures.
    void setInterval(int milliseconds) { Timer1_.setInterval(milliseconds); }

protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Timer1_Timer();

    QTimer Timer1_{this};
    RightAnswerBlink blink_;
    look::Icon Image1_;
    look::Icon Image2_;
    QPixmap behind_; ///< what the round corners leave to be seen
};

} // namespace exercises
