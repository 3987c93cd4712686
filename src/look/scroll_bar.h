#pragma once

#include "look/icon.h"

#include <QBasicTimer>
#include <QScrollBar>

namespace look {

/// An upright scroll bar: arrows at its ends, a track between them, a round thumb.
class ScrollBar : public QScrollBar {
public:
    enum class Top {
        Maximum, ///< a page whose top edge stands at the value scrolls down as the value falls
        Minimum, ///< as the toolkit's own lists and texts count
    };

    explicit ScrollBar(QWidget* parent, Top top = Top::Maximum);

    /// Rectangle of the thumb, in logical pixels of the control.
    QRectF thumb() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    QRectF track() const;
    int distanceFromTop() const;
    SliderAction actionAt(double y) const;
    int valueOfThumbAt(double top) const;

    Top top_;
    Icon up_{QStringLiteral("up")};
    Icon down_{QStringLiteral("down")};
    QBasicTimer repeat_;
    SliderAction repeated_ = SliderNoAction;
    double pressedAt_ = 0;
    double grip_ = 0; ///< distance of the pointer from the thumb's top while dragging
};

} // namespace look
