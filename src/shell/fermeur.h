#pragma once

#include "look/icon.h"

#include <QDialog>
#include <QTimer>

#include <functional>

namespace shell {

/// `Fermeur`: covers the time that the closing takes. Nobody can close it, stop it or use another
/// window meanwhile.
class Fermeur : public QDialog {
public:
    /// Stands over the middle of `window`, or of the screen when that is minimised. `closing` is
    /// run once, when the screen has been painted.
    Fermeur(QWidget* window, std::function<void()> closing);

    /// Shows the screen and returns when the closing is over. The screen stays: the program is to
    /// end at once.
    void run();

    void reject() override {}

protected:
    void paintEvent(QPaintEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void place(QWidget* window);
    void Form_Activate();

    std::function<void()> closing_;
    QTimer painted_;
    look::Icon Image1_;
};

} // namespace shell
