#pragma once

#include "common/formula.h"

#include <QWidget>

namespace common {

/// A label that shows one formula on one line, at the left unless told otherwise.
class FormulaLabel : public QWidget {
public:
    /// `spoken` is what a screen reader says.
    FormulaLabel(const QString& formula, const QString& spoken, int pixels,
                 QWidget* parent = nullptr);

    void setFormula(const QString& formula, const QString& spoken);
    /// Left or right.
    void setAlignment(Qt::AlignmentFlag alignment) { alignment_ = alignment; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent*) override;

private:
    QString source_;
    int pixels_;
    Formula formula_;
    Qt::AlignmentFlag alignment_ = Qt::AlignLeft;
};

} // namespace common
