#pragma once

#include <QLineEdit>

namespace calculator {

/// The one-line display. It cannot be edited: every key goes on to the window, but for the one that
/// copies: the selection, or all of it. Letters grow smaller for a longer text, and when they are
/// at their smallest the end of the text is shown; the caret stands there always.
class Display : public QLineEdit {
public:
    explicit Display(QWidget* parent);

    void showText(const QString& text);
    /// A quiet line above the text, until that changes.
    void showHint(const QString& hint);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void fitFont(const QString& text);
    double room() const;
    void paintFade();
    void paintHint();

    QString hint_;
};

} // namespace calculator
