#pragma once

#include "platform/qt/look/icon.h"

#include <QWidget>

#include <functional>

namespace viewer {

/// The frame of the page's video: the buttons `Image4`, the marker of how far it has come, and,
/// while a video is open, its picture `projo`.
class VideoFrame : public QWidget {
public:
    explicit VideoFrame(QWidget* parent);

    /// `pressed` gets the index of the button clicked, see VideoDevice::press().
    void onImage4_Click(std::function<void(int)> pressed) { pressed_ = std::move(pressed); }

    QWidget& projo() { return *projo_; }

    /// Lays the frame out with or without the picture.
    void setOpen(bool open);

    /// How far the video has come, 0 to 1.
    void setProgress(double share);
    /// A word on what the video does.
    void setStatus(const QString& status);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void addButtons();

    std::function<void(int)> pressed_;
    platform::look::Icon sign_{QStringLiteral("video")};
    QWidget* projo_;
    QWidget* buttons_;
    bool open_ = false;
    double progress_ = 0;
    QString status_;
};

} // namespace viewer
