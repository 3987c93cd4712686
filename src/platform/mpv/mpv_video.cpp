#include "platform/mpv/mpv_video.h"

#include "platform/avi_header.h"
#include "platform/mpv/mpv_player.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <optional>

namespace platform {

namespace {

/// A marker of 217 pixels moves smoothly with this.
constexpr int kTickMs = 50;
/// A position that stays the same for so long while playing: the file has nothing more to give,
/// even where libmpv does not say so. A disc that spins up again takes less.
constexpr int kStallMs = 5000;
/// A seek that has no answer by then is given up: the file has nothing at the place.
constexpr int kSeekMs = 3000;

class MpvVideo : public Video {
public:
    bool start();

    void setScreen(VideoScreen* screen) override { screen_ = screen; }
    void setListener(VideoListener* listener) override { listener_ = listener; }
    void setFileName(const QString& path) override { path_ = path; }
    bool send(Command command) override;
    void setFrom(int frame) override { from_ = frame; }
    int position() const override;
    int length() const override { return length_; }
    bool isPlaying() const override { return playing_; }

private:
    bool open();
    void close();
    void play();
    void stand();
    void standAt(int frame);

    void goTo(int frame);
    void seekTarget();
    void arrive();
    void run();

    void tick();
    void finishPlay();
    void showPicture();
    void tellStatus();

    std::optional<AviHeader> header() const;
    bool measure(const AviHeader& header);

    VideoScreen* screen_ = nullptr;
    VideoListener* listener_ = nullptr;
    QString path_;

    bool open_ = false;
    double framesPerSecond_ = 0;
    int length_ = 0;

    std::optional<int> from_;
    bool playing_ = false;      ///< asked for; with a target it begins there
    std::optional<int> target_; ///< the frame to get to
    bool seeking_ = false;      ///< on the way to some frame, perhaps of an earlier target
    int seekingFor_ = 0;

    int lastPosition_ = 0;
    QElapsedTimer sinceMoved_;
    QTimer ticks_;
    QTimer seekPatience_;
    std::unique_ptr<MpvPlayer> player_; ///< ends first
};

bool MpvVideo::start() {
    player_ =
        MpvPlayer::make({[this] { arrive(); }, [this] { close(); }, [this] { showPicture(); }});
    ticks_.setInterval(kTickMs);
    QObject::connect(&ticks_, &QTimer::timeout, [this] { tick(); });
    seekPatience_.setInterval(kSeekMs);
    seekPatience_.setSingleShot(true);
    QObject::connect(&seekPatience_, &QTimer::timeout, [this] { arrive(); });
    return player_ != nullptr;
}

bool MpvVideo::send(Command command) {
    if (command == Command::Open)
        return open();
    if (command == Command::Close) {
        close();
        return true;
    }
    if (!open_)
        return false;
    switch (command) {
    case Command::Play:
        play();
        break;
    case Command::Step:
        standAt(position() + 1);
        break;
    case Command::Back:
        standAt(position() - 1);
        break;
    case Command::Prev:
        standAt(0);
        break;
    default:
        stand();
    }
    return true;
}

/// Nothing when the file cannot be read, or is no AVI file: what libmpv would make of it (a list of
/// other files, say) is none of a page's business.
std::optional<AviHeader> MpvVideo::header() const {
    QFile file(path_);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray start = file.read(kAviHeaderBytes);
    return readAviHeader(std::as_bytes(std::span(start.constData(), std::size_t(start.size()))));
}

bool MpvVideo::open() {
    close();
    const auto said = header();
    if (!said || !player_->load(path_))
        return false;
    open_ = measure(*said);
    if (!open_)
        player_->unload();
    return open_;
}

/// What the headers say about the pictures; where they are silent, what libmpv has found out.
bool MpvVideo::measure(const AviHeader& header) {
    framesPerSecond_ = header.framesPerSecond > 0 ? header.framesPerSecond
                                                  : player_->number("container-fps").value_or(0);
    if (!(framesPerSecond_ >= kSlowest && framesPerSecond_ <= kFastest))
        return false;
    const double frames =
        header.frames > 0 ? header.frames
                          : std::round(player_->number("duration").value_or(0) * framesPerSecond_);
    length_ = static_cast<int>(std::clamp(frames, 1.0, double(kMostFrames))) - 1;
    return true;
}

void MpvVideo::close() {
    ticks_.stop();
    seekPatience_.stop();
    if (open_)
        player_->unload();
    open_ = playing_ = seeking_ = false;
    target_.reset();
    from_.reset();
    length_ = 0;
}

int MpvVideo::position() const {
    if (target_)
        return *target_;
    if (!open_)
        return 0;
    // With sound, libmpv counts on after the last picture.
    const double frame = std::round(player_->number("time-pos").value_or(0) * framesPerSecond_);
    return static_cast<int>(std::clamp(frame, 0.0, double(length_)));
}

void MpvVideo::play() {
    playing_ = true;
    if (from_)
        goTo(*from_);
    else if (!target_)
        run();
    from_.reset();
}

/// Where it is, or at the place it is on the way to.
void MpvVideo::stand() {
    playing_ = false;
    ticks_.stop();
    player_->setPaused(true);
    if (!target_)
        tellStatus();
}

void MpvVideo::standAt(int frame) {
    playing_ = false;
    goTo(frame);
}

void MpvVideo::goTo(int frame) {
    ticks_.stop();
    player_->setPaused(true);
    target_ = std::clamp(frame, 0, length_);
    // One at a time: of several wanted meanwhile only the last counts.
    if (!seeking_)
        seekTarget();
}

void MpvVideo::seekTarget() {
    seeking_ = true;
    seekingFor_ = *target_;
    // An exact seek shows the first frame at or after the time. Half a frame before that of the
    // frame, rounding on either side does not matter.
    player_->seek(seekingFor_ == 0 ? 0 : (seekingFor_ - 0.5) / framesPerSecond_);
    seekPatience_.start();
}

void MpvVideo::arrive() {
    if (!seeking_)
        return;
    seeking_ = false;
    seekPatience_.stop();
    if (*target_ != seekingFor_) {
        seekTarget();
        return;
    }
    target_.reset();
    if (playing_)
        run();
    tellStatus();
}

void MpvVideo::run() {
    lastPosition_ = position();
    sinceMoved_.start();
    // At the last frame there may be sound left, but nothing more to see.
    if (lastPosition_ < length_)
        player_->setPaused(false);
    ticks_.start();
}

void MpvVideo::tick() {
    const int now = position();
    if (now != lastPosition_) {
        lastPosition_ = now;
        sinceMoved_.restart();
    }
    const double quietMs = static_cast<double>(sinceMoved_.elapsed());
    if (now >= length_) {
        // The last frame shows as long as any other.
        if (quietMs >= 1000 / framesPerSecond_)
            return finishPlay();
    } else if (player_->atEndOfFile() || quietMs >= kStallMs) {
        // The file has fewer frames than it says.
        length_ = now;
        return finishPlay();
    }
    tellStatus();
}

void MpvVideo::finishPlay() {
    stand();
    if (listener_)
        listener_->playEnded();
}

void MpvVideo::showPicture() {
    const QSize size = screen_ ? screen_->pictureSize() : QSize();
    if (size.isEmpty())
        return;
    const QImage picture = player_->picture(size);
    if (!picture.isNull())
        screen_->showPicture(picture);
}

void MpvVideo::tellStatus() {
    if (listener_)
        listener_->statusUpdated();
}

} // namespace

std::unique_ptr<Video> makeMpvVideo() {
    auto video = std::make_unique<MpvVideo>();
    return video->start() ? std::move(video) : nullptr;
}

} // namespace platform
