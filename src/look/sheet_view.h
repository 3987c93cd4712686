#pragma once

#include "look/keeps_colours.h"
#include "page/faces/font_book.h"
#include "page/sheet.h"

#include <QImage>
#include <QWidget>

#include <functional>

namespace look {

/// A sheet of paper, whole, as large as there is room for it.
class SheetView : public QWidget, public KeepsColours {
public:
    /// `fonts` must be the one that the sheets were laid out with, and outlive the view.
    SheetView(const page::FontBook& fonts, QWidget* parent);

    void show(const page::Sheet& sheet);

    /// Paper is white, whatever the windows are.
    QRegion keptArea() const override { return shown_; }

    /// Calls `step` with 1 or -1 when the wheel asks for the next sheet or the one before.
    void onStep(std::function<void(int)> step) { step_ = std::move(step); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void draw(QSizeF room, double ratio);

    const page::FontBook& fonts_;
    page::Sheet sheet_{};
    QImage image_; ///< the sheet, once it has been painted
    QRect shown_;  ///< where the sheet was painted
    std::function<void(int)> step_;
    int wheelAngle_ = 0; ///< of a notch that is not complete
};

} // namespace look
