// The main window as the page's video sees it.

#include "look/interface_font.h"
#include "look/menu_style.h"
#include "look/page_panel.h"
#include "page/twips.h"
#include "viewer/multim.h"
#include "viewer/video_frame.h"
#include "viewer/video_menu.h"

#include <QMenu>

namespace viewer {

namespace {

constexpr QRect kVideoClosed(168, 488, 624, 64);
constexpr QRect kVideoOpen(168, 296, 624, 256);
constexpr QRect kVideoDouble(8, 64, 784, 536); ///< over all but the toolbar

struct Heights {
    int panel;
    int view;
};

Heights heightsBeside(Multim::VideoLayout layout) {
    switch (layout) {
    case Multim::VideoLayout::None:
        return {440, 424};
    case Multim::VideoLayout::Closed:
        return {368, 352};
    default:
        return {176, 160};
    }
}

} // namespace

void Multim::setVideoLayout(VideoLayout layout) {
    videoLayout_ = layout;
    const Heights heights = heightsBeside(layout);
    panel_->setPanelHeight(heights.panel, heights.view);
    using Shape = VideoFrame::Shape;
    const bool isDouble = layout == VideoLayout::Double;
    const bool open = layout == VideoLayout::Open;
    videoFrame_->setGeometry(isDouble ? kVideoDouble : open ? kVideoOpen : kVideoClosed);
    videoFrame_->setShape(isDouble ? Shape::Double : open ? Shape::Open : Shape::Closed);
    videoFrame_->setVisible(layout != VideoLayout::None);
    if (isDouble)
        videoFrame_->raise();
}

void Multim::showVideoFrame() {
    const bool menu = hasVideoMenu();
    videoFrame_->setMarkerWidth(0);
    videoFrame_->setStatus({}, false, false);
    videoFrame_->projo().showWords(menu ? QStringLiteral("Choisir une vidéo…") : QString());
    // The menu belongs to the picture, which shows before there is a video.
    setVideoLayout(menu ? VideoLayout::Open : VideoLayout::Closed);
}

bool Multim::hasVideoMenu() const {
    return !videoMenuCaptions(shown_.videoPage.value_or(QString())).isEmpty();
}

void Multim::setPictureVisible(bool visible) {
    // Without the frame, on a page without a video, there is nothing to show.
    const VideoLayout layout = visible ? VideoLayout::Open : VideoLayout::Closed;
    if (videoLayout_ == VideoLayout::None || videoLayout_ == layout ||
        (visible && videoLayout_ == VideoLayout::Double))
        return;
    setVideoLayout(layout);
    panel_->fitView();
}

void Multim::toggleVideoSize() {
    if (videoLayout_ == VideoLayout::Open)
        setVideoLayout(VideoLayout::Double);
    else if (videoLayout_ == VideoLayout::Double)
        setVideoLayout(VideoLayout::Open);
}

QSize Multim::pictureSize() const {
    return videoFrame_->projo().pictureSize();
}

void Multim::showPicture(const QImage& picture) {
    videoFrame_->projo().showPicture(picture);
}

void Multim::setMarkerWidth(double twips) {
    videoFrame_->setMarkerWidth(twips);
}

void Multim::setVideoStatus(const QString& words, bool playing, bool atEnd) {
    videoPlays_ = playing;
    videoFrame_->setStatus(words, playing, atEnd);
}

void Multim::Image4_Click(int index) {
    stopReading(); // one of them is heard at a time
    if (hasVideoMenu())
        projo_Click();
    else
        work([this, index] { parts_->collaborators.video.press(index); });
}

/// Where the picture has a menu, that comes up; a video plays and pauses.
void Multim::projo_Click() {
    if (!hasVideoMenu())
        return videoFrame_->playOrPause();
    if (working_)
        return;
    auto* MVideo = new QMenu(this);
    MVideo->setObjectName(QStringLiteral("MVideo"));
    MVideo->setAccessibleName(QStringLiteral("Vidéos"));
    MVideo->setStyle(new look::MenuStyle(MVideo));
    MVideo->setFont(look::interfaceFont(look::kLabelPx));
    for (const QString& caption : videoMenuCaptions(shown_.videoPage.value_or(QString())))
        connect(MVideo->addAction(caption), &QAction::triggered, this,
                [this, caption] { chooseVideo(caption); });
    connect(MVideo, &QMenu::aboutToHide, MVideo, &QObject::deleteLater);
    MVideo->popup(videoFrame_->menuPlace());
    MVideo->setActiveAction(MVideo->actions().constFirst());
}

void Multim::chooseVideo(const QString& caption) {
    work([this, caption] {
        parts_->collaborators.video.close();
        if (const auto target =
                videoMenuTarget(caption, parts_->pages.record().records(), summaryCode_))
            parts_->commands.runCode(*target);
    });
}

} // namespace viewer
