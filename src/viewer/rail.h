#pragma once

#include "look/icon.h"

#include <QWidget>

namespace look {
class PictureBox;
}

namespace viewer {

/// The left side of the main window: the program's mark, the illustration area, the button back to
/// the test (`btexo`, with `Label16` over its words), and the history buttons `avant` and `apres`.
/// Where it is lower than usual, the illustration area is.
class Rail : public QWidget {
public:
    explicit Rail(QWidget* parent);

    /// Takes the illustration area in.
    void setIllustration(look::PictureBox* illustration);

    /// Stands there from now on; to be called once the illustration area is in.
    void place(const QRect& rectangle);

    void setReturnToTestVisible(bool visible);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    look::Icon mark_{QStringLiteral("orvalente")};
    QWidget* illustration_ = nullptr;
    QWidget* avant_;
    QWidget* apres_;
    QWidget* btexo_;
    QWidget* Label16_;
};

} // namespace viewer
