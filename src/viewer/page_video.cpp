#include "viewer/page_video.h"

#include "platform/file_names.h"

namespace viewer {

using Command = platform::Video::Command;

PageVideo::PageVideo(shell::SharedState& state, const markup::DrawnPage& page,
                     coursedata::DataLocation& location, VideoView& view, DeviceMaker makeDevice)
    : state_(state), page_(page), location_(location), view_(view),
      makeDevice_(std::move(makeDevice)) {}

void PageVideo::close() {
    if (MMControl1_)
        send(Command::Close);
    state_.VideoOpen = false;
    view_.setPictureVisible(false);
}

void PageVideo::openVideo() {
    close();
    const QString path = locate(page_.videoPage.value_or(QString()));
    if (path.isEmpty() || !haveDevice())
        return;
    MMControl1_->setScreen(&view_);
    MMControl1_->setListener(this);
    MMControl1_->setFileName(path);
    view_.pumpPendingMessages();
    send(Command::Close);
    state_.VideoOpen = MMControl1_->send(Command::Open);
    if (state_.VideoOpen)
        view_.setPictureVisible(true);
}

/// Empty when the person gave up looking for it.
QString PageVideo::locate(const QString& name) {
    const QString fileName = platform::lastComponent(name);
    if (const auto installed = platform::findWithoutCase(state_.InstallDir, fileName))
        return *installed;
    if (const auto beside = location_.findBesideLastVideo(fileName))
        return *beside;
    return location_.locateVideo(name);
}

bool PageVideo::haveDevice() {
    if (!MMControl1_)
        MMControl1_ = makeDevice_();
    return MMControl1_ != nullptr;
}

void PageVideo::press(int index) {
    if (!isReady())
        return;
    switch (index) {
    case 0:
        return play();
    case 1:
        return send(Command::Step);
    case 2:
        return send(Command::Pause);
    case 3:
        send(Command::Stop);
        return rewind();
    case 4:
        return send(Command::Back);
    case 5:
        return showFrom(MMControl1_->length());
    case 6:
        return send(Command::Prev);
    default:
        return;
    }
}

/// Opens the page's video at the first use.
bool PageVideo::isReady() {
    if (!state_.VideoOpen) {
        openVideo();
        if (state_.VideoOpen)
            rewind();
    }
    return state_.VideoOpen;
}

void PageVideo::seek(double share) {
    if (!isReady())
        return;
    const bool goesOn = MMControl1_->isPlaying();
    showFrom(qRound(qBound(0.0, share, 1.0) * MMControl1_->length()));
    if (goesOn)
        send(Command::Play);
}

void PageVideo::refresh() {
    if (state_.VideoOpen && !MMControl1_->isPlaying())
        showFrom(MMControl1_->position());
}

void PageVideo::play() {
    if (atEnd())
        rewind();
    send(Command::Play);
}

void PageVideo::rewind() {
    showFrom(0);
}

/// A Play that is stopped before it begins shows the frame it would have begun with.
void PageVideo::showFrom(int frame) {
    MMControl1_->setFrom(frame);
    send(Command::Play);
    send(Command::Stop);
}

bool PageVideo::atEnd() const {
    return MMControl1_->position() == MMControl1_->length();
}

void PageVideo::statusUpdated() {
    const int position = MMControl1_->position();
    const int length = MMControl1_->length();
    // At the end the marker stays as it was: meant so.
    if (position != length && length != 0)
        view_.setMarkerWidth(double(position) / length * kMarkerTwips);

    const bool playing = MMControl1_->isPlaying();
    view_.setVideoStatus(playing         ? QStringLiteral("Lecture en cours")
                         : position == 0 ? QStringLiteral("Au début")
                         : atEnd()       ? QStringLiteral("À la fin")
                                         : QStringLiteral("En pause"),
                         playing, length != 0 && position == length);
}

void PageVideo::playEnded() {
    if (atEnd())
        rewind();
}

} // namespace viewer
