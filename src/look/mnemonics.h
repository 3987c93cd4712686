#pragma once

#include <QObject>

namespace look {

/// Underlines the mnemonics of a window's buttons and captions while Alt is down, and only then. To
/// be made once they are there.
class MnemonicDisplay : public QObject {
public:
    /// Watches `window` for as long as it lives.
    explicit MnemonicDisplay(QWidget* window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void show(bool shown);

    class Style;

    QWidget* window_;
    Style* style_; ///< of the controls that do not paint themselves
    bool shown_ = false;
};

} // namespace look
