#pragma once

#include "common/formula.h"

#include <QWidget>

namespace common {

/// A label that shows one formula on one line, at the left.
class FormulaLabel : public QWidget {
public:
    /// `spoken` is what a screen reader says.
    FormulaLabel(const QString& formula, const QString& spoken, int pixels,
                 QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent*) override;

private:
    Formula formula_;
};

} // namespace common
