#pragma once

#include "look/icon.h"

#include <QWidget>

namespace look {
class PictureBox;
}

namespace viewer {

/// The left side of the main window: the program's mark, the illustration area, the button back to
/// the test (`btexo`, with `Label16` over its words), and the history buttons `avant` and `apres`.
class Rail : public QWidget {
public:
    explicit Rail(QWidget* parent);

    /// Takes the illustration area in.
    void setIllustration(look::PictureBox* illustration);

    void setReturnToTestVisible(bool visible);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    look::Icon mark_{QStringLiteral("orvalente")};
    QWidget* btexo_;
    QWidget* Label16_;
};

} // namespace viewer
