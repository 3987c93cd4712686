#pragma once

#include "calculator/key_rules.h"

#include <QElapsedTimer>
#include <QWidget>

namespace calculator {

class Display;

/// The calculator's window. Its keys and the keyboard press the keys of KeyRules, and the display
/// shows what those say. It has no parent, so it stays usable beside a window that is modal to the
/// main window only.
///
/// Escape during an evaluation ends it; everything else waits for its end, closing the window too.
class Machine : public QWidget, private CalculatorView {
public:
    /// `memory` must outlive the window.
    explicit Machine(Memory& memory);

    /// Milliseconds of an evaluation between two moments in which input is let through. Shorter
    /// evaluations, which is all but the largest, lose no key that was typed ahead.
    void setBreathingInterval(int milliseconds) { breathingInterval_ = milliseconds; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void addOptions();
    void addKeys();
    void press(const Key& key);
    void paste();

    void showText(TextView text) override;
    void beep() override;
    void breathe() override;

    KeyRules rules_;
    Display* z1_;
    QElapsedTimer sinceBreath_;
    int breathingInterval_;
    bool closing_ = false; ///< asked to close in the middle of an evaluation
};

} // namespace calculator
