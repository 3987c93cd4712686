#pragma once

#include "look/keeps_colours.h"

#include <QImage>
#include <QWidget>

#include <functional>

namespace viewer {

/// `projo`: the picture of a video, or, where the page lets choose a video, an invitation to.
class VideoPicture : public QWidget, public look::KeepsColours {
public:
    explicit VideoPicture(QWidget* parent);

    void onClick(std::function<void()> clicked) { clicked_ = std::move(clicked); }
    /// `doubled` is called for a double click on a video, whose first click is taken back.
    void onDoubleClick(std::function<void()> doubled) { doubled_ = std::move(doubled); }

    /// `resized` is called when the picture shown has not the size that it is asked to have.
    void onResized(std::function<void()> resized) { resized_ = std::move(resized); }

    /// In the pixels of the screen.
    QSize pictureSize() const;
    void showPicture(const QImage& picture);
    /// Shows these words, and no picture.
    void showWords(const QString& words);

    /// Whether a video is to be seen, or will be, rather than words.
    bool isVideo() const { return words_.isEmpty(); }

    QRegion keptArea() const override { return rect(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    QImage picture_;
    QString words_;
    std::function<void()> clicked_;
    std::function<void()> doubled_;
    std::function<void()> resized_;
    QSize asked_; ///< the size that it was asked to have last
};

} // namespace viewer
