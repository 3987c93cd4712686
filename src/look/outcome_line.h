#pragma once

#include "look/icon.h"

#include <QWidget>

#include <functional>

class QLabel;

namespace look {

class Button;

/// What a line about something that happened lets do.
struct LineAction {
    QString caption; ///< of the button; empty for none
    std::function<void()> run = {};
};

/// A line about what happened, or goes on: a sign, the words in one or two lines, shortened where
/// they are too long, with the whole in the tooltip, and perhaps a button.
class OutcomeLine : public QWidget {
public:
    enum class Kind { Warning, Done, Voice };

    explicit OutcomeLine(QWidget* parent);

    /// Shows itself; who listens to the screen hears it.
    void tell(Kind kind, const QString& words, const LineAction& action = {});

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void arrange();

    Icon sign_;
    QLabel* words_;
    Button* button_;
    QString all_; ///< the words, not shortened
    std::function<void()> run_;
};

} // namespace look
