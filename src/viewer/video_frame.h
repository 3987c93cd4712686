#pragma once

#include "look/button.h"
#include "viewer/video_picture.h"

#include <QWidget>

#include <functional>

namespace viewer {

/// The frame of the page's video: the buttons `Image4`, the marker of how far it has come, and,
/// while a video is open, its picture `projo`. With the keyboard on it, or on one of its buttons,
/// the arrows go from frame to frame, Home and End to the first and the last; Space plays and
/// pauses. It takes the keyboard when it is clicked. A click or a drag on the marker's track leads
/// to that place of the video. A button, or a double click on the picture, shows it at double size,
/// and again as it was; so does Escape then.
class VideoFrame : public QWidget {
public:
    explicit VideoFrame(QWidget* parent);

    /// `pressed` gets the index of the button clicked, see VideoDevice::press().
    void onImage4_Click(std::function<void(int)> pressed) { pressed_ = std::move(pressed); }

    VideoPicture& projo() { return *projo_; }
    /// Where a menu comes up: at the pointer, or on the picture for who pressed a key.
    QPoint menuPlace() const;

    /// How the frame is laid out: without the picture, with it, or with it at double size and all
    /// else below it.
    enum class Shape { Closed, Open, Double };
    void setShape(Shape shape);

    /// `toggled` is called when the other of the two sizes of the picture is asked for.
    void onSizeToggled(std::function<void()> toggled) { sizeToggled_ = std::move(toggled); }

    /// `sought` gets the place in the video that was chosen on the marker's track, 0 to 1.
    void onSought(std::function<void(double)> sought) { sought_ = std::move(sought); }

    /// The same as the button for what the video does not do now.
    void playOrPause();

    /// How far the video has come, in twips: 0 to PageVideo::kMarkerTwips.
    void setMarkerWidth(double twips);
    /// A word on what the video does, whether it plays, and whether its last frame stands.
    void setStatus(const QString& status, bool playing, bool atEnd);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addButtons();
    void toggleSize();
    void press(int index);
    bool pressForKey(int key);
    QRectF track() const;
    void seekTo(double x);
    void paintWords(QPainter& painter) const;
    void paintMarker(QPainter& painter) const;

    std::function<void(int)> pressed_;
    std::function<void(double)> sought_;
    std::function<void()> sizeToggled_;
    bool seeking_ = false;
    look::Icon sign_{QStringLiteral("video")};
    VideoPicture* projo_;
    QWidget* buttons_;
    look::Button* size_;
    Shape shape_ = Shape::Closed;
    double share_ = 0; ///< of the video that the marker shows
    QString status_;
    bool playing_ = false;
    bool atEnd_ = false;
};

} // namespace viewer
