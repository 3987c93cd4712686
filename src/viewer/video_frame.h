#pragma once

#include "look/icon.h"
#include "viewer/video_picture.h"

#include <QWidget>

#include <functional>

namespace viewer {

/// The frame of the page's video: the buttons `Image4`, the marker of how far it has come, and,
/// while a video is open, its picture `projo`. With the keyboard on it, or on one of its buttons,
/// the arrows go from frame to frame, Home and End to the first and the last; Space plays and
/// pauses. It takes the keyboard when it is clicked.
class VideoFrame : public QWidget {
public:
    explicit VideoFrame(QWidget* parent);

    /// `pressed` gets the index of the button clicked, see VideoDevice::press().
    void onImage4_Click(std::function<void(int)> pressed) { pressed_ = std::move(pressed); }

    VideoPicture& projo() { return *projo_; }
    /// Where a menu comes up: at the pointer, or on the picture for who pressed a key.
    QPoint menuPlace() const;

    /// Lays the frame out with or without the picture.
    void setOpen(bool open);

    /// How far the video has come, in twips: 0 to PageVideo::kMarkerTwips.
    void setMarkerWidth(double twips);
    /// A word on what the video does, and whether it plays.
    void setStatus(const QString& status, bool playing);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addButtons();
    void press(int index);
    bool pressForKey(int key);
    void paintMarker(QPainter& painter) const;

    std::function<void(int)> pressed_;
    look::Icon sign_{QStringLiteral("video")};
    VideoPicture* projo_;
    QWidget* buttons_;
    bool open_ = false;
    double markerPx_ = 0;
    QString status_;
    bool playing_ = false;
};

} // namespace viewer
