#pragma once

#include <QProgressBar>

namespace look {

/// How far a long work has come, without words, painted by hand.
class ProgressBar : public QProgressBar {
public:
    explicit ProgressBar(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace look
