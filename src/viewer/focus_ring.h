#pragma once

#include <QPointer>
#include <QSize>
#include <QWidget>

namespace viewer {

/// The ring around the link that has the keyboard. It lies over the window, so that the edge of
/// the page does not cut it where a link stands there, and goes along when the page scrolls.
class FocusRing : public QWidget {
public:
    explicit FocusRing(QWidget* window);

    /// Lays the ring around the contents rectangle of a control of the window, its outer edge
    /// `reach` pixels away; null hides it.
    void surround(QWidget* control, QSize reach = {});

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void fit();
    QRect viewOfControl() const;

    QRect widened(const QRect& rect) const;

    QPointer<QWidget> control_;
    QSize reach_;
    QRect ring_; ///< whole, in the window
};

} // namespace viewer
