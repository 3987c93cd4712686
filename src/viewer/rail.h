#pragma once

#include "platform/qt/look/icon.h"

#include <QWidget>

namespace viewer {

class PictureBox;

/// The left side of the main window: the program's mark, the illustration area, the button back to
/// the test (`btexo`, with `Label16` over its words), and the history buttons `avant` and `apres`.
class Rail : public QWidget {
public:
    explicit Rail(QWidget* parent);

    /// Takes the illustration area in.
    void setIllustration(PictureBox* illustration);

    void setReturnToTestVisible(bool visible);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    platform::look::Icon mark_{QStringLiteral("orvalente")};
    QWidget* btexo_;
    QWidget* Label16_;
};

} // namespace viewer
