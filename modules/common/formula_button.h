#pragma once

#include "common/formula.h"
#include "look/button.h"

namespace common {

/// A button whose caption is a formula.
class FormulaButton : public look::Button {
public:
    /// `spoken` is what a screen reader says.
    FormulaButton(const QString& formula, const QString& spoken, const Look& look,
                  QWidget* parent = nullptr);

protected:
    void paintCaption(QPainter& painter, QPointF baseline) const override;
    double captionWidth() const override { return formula_.width(); }

private:
    Formula formula_;
};

} // namespace common
