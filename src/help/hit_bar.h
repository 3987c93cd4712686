#pragma once

#include <QWidget>

class QLabel;

namespace help {

/// The bar under the page while words are marked on it.
class HitBar : public QWidget {
public:
    explicit HitBar(QWidget* parent);

    /// `current` from 0, -1 for none.
    void showHits(int current, int count);

    /// Calls `step` with 1 or -1.
    void onStep(std::function<void(int)> step) { step_ = std::move(step); }

private:
    void addButton(const QString& icon, const QString& words, int by);

    QLabel* words_;
    std::function<void(int)> step_;
};

} // namespace help
