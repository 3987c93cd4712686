#pragma once

#include "coursedata/data_location.h"
#include "markup/drawn_page.h"
#include "platform/video.h"
#include "shell/shared_state.h"
#include "viewer/collaborators.h"
#include "viewer/video_view.h"

#include <QString>

#include <functional>
#include <memory>

namespace viewer {

/// The page's video on the device `MMControl1`, which the first use of a button makes: pages
/// without a video, and those whose video nobody looks at, do without. Whatever the device cannot
/// do leaves the display as it was; no message says so.
class PageVideo : public VideoDevice, private platform::VideoListener {
public:
    /// The marker of a video at its end.
    static constexpr double kMarkerTwips = 3255;

    /// Makes the device; null when there is none. Not asked again before the next opening.
    using DeviceMaker = std::function<std::unique_ptr<platform::Video>()>;

    /// The video is the one that `page` names, the page shown.
    PageVideo(shell::SharedState& state, const markup::DrawnPage& page,
              coursedata::DataLocation& location, VideoView& view, DeviceMaker makeDevice);

    // VideoDevice
    void close() override;
    void press(int index) override;
    void seek(double share) override;
    void refresh() override;

private:
    void openVideo();
    bool isReady();
    QString locate(const QString& name);
    bool haveDevice();
    void send(platform::Video::Command command) { MMControl1_->send(command); }
    void rewind();
    void play();
    void showFrom(int frame);
    bool atEnd() const;

    // platform::VideoListener
    void statusUpdated() override;
    void playEnded() override;

    shell::SharedState& state_;
    const markup::DrawnPage& page_;
    coursedata::DataLocation& location_;
    VideoView& view_;
    DeviceMaker makeDevice_;
    std::unique_ptr<platform::Video> MMControl1_;
};

} // namespace viewer
