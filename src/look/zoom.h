#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <functional>

namespace look {

/// Enlarges all windows of the program while it runs, by keys that everyone tries: Ctrl with + - 0
/// or the wheel, and F11, with which the main window fills the screen. It is kept nowhere: each run
/// begins with the scale that it was started with.
class Zoom : public QObject {
public:
    /// Watches the application object, which must be there, for as long as it lives.
    /// `programScale`: the factor that Qt was started with, above 0.
    explicit Zoom(double programScale = 1);

    struct Hooks {
        /// Before windows get their places: `scale()` has changed.
        std::function<void(double scale)> changed;
        /// Where the main window belongs while it does not fill the screen, in its pixels.
        std::function<QRect()> place;
    };
    /// `main`, which implements ScreenFilling, is the window that the others stand beside.
    void setWindow(QWidget& main, Hooks hooks);

    /// How many pixels of the screen a pixel of the windows covers.
    double scale() const { return scale_; }

    void larger();
    void smaller();
    /// Back to the scale that the program was started with.
    void reset();
    void toggleScreenFilled();
    /// Where the main window with its frame has no room on the screen, it has to fill it for good.
    void fillScreenForGood();
    /// Has the windows of their own size again; false when they were so, or must not be.
    bool leaveFilledScreen();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool handleKey(int key, Qt::KeyboardModifiers modifiers);
    bool handleWheel(int angle);
    void later(void (Zoom::*action)());
    QSizeF screenPixels() const;
    double largestWithFrame() const;
    void zoomTo(double scale);
    void setScale(double scale);
    void setFilled(bool filled);

    const double programScale_;
    double scale_;
    double screenScale_ = 0; ///< the screen's own factor; 0 before it was asked
    double scaleBeforeFilling_ = 1;
    bool filled_ = false;
    bool forGood_ = false;
    int wheelAngle_ = 0; ///< of a notch that is not complete, in eighths of a degree
    QPointer<QWidget> main_;
    Hooks hooks_;
};

} // namespace look
