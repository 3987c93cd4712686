#pragma once

#include <QObject>

namespace platform::look {

/// Underlines the mnemonics of a window's buttons while Alt is down, and only then.
class MnemonicDisplay : public QObject {
public:
    /// Watches `window` for as long as it lives.
    explicit MnemonicDisplay(QWidget* window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void show(bool shown);

    QWidget* window_;
    bool shown_ = false;
};

} // namespace platform::look
