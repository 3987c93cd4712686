#include "platform/mpv/mpv_player.h"

#include <QDeadlineTimer>
#include <QScopedValueRollback>

#include <mpv/client.h>
#include <mpv/render.h>

#include <chrono>
#include <clocale>
#include <future>
#include <system_error>
#include <thread>

namespace platform {

namespace {

/// An optical disc takes some seconds to spin up.
constexpr int kLoadPatienceMs = 10'000;
constexpr double kLookSeconds = 0.01;
/// Longer than ending takes, shorter than anyone waits for it.
constexpr std::chrono::milliseconds kEndPatience{2000};

struct Setting {
    const char* name;
    const char* value;
};

constexpr Setting kSettings[] = {
    {"vo", "libmpv"},
    {"config", "no"},
    {"terminal", "no"},
    {"osc", "no"},
    {"osd-level", "0"},
    {"load-scripts", "no"},
    {"ytdl", "no"},
    {"input-default-bindings", "no"},
    {"hwdec", "no"},
    {"idle", "yes"},
    {"pause", "yes"},
    {"keep-open", "yes"},
    {"hr-seek", "yes"},
    {"hr-seek-framedrop", "no"},
    {"audio-fallback-to-null", "yes"},
    // A page opens the one file that it names: no play lists, and nothing that lies beside it.
    {"demuxer", "lavf"},
    {"demuxer-lavf-format", "avi"},
    {"autoload-files", "no"},
    // 4096 x 4096: no disc has larger pictures, and each takes four bytes a pixel several times.
    {"vd-lavc-o", "max_pixels=16777216"},
    {"demuxer-max-bytes", "16MiB"},
};

} // namespace

/// Waits for whoever reads the film, but not for a disc that hangs: the end of the program takes
/// along what is left behind then.
void MpvPlayer::Terminate::operator()(mpv_handle* handle) const {
    std::packaged_task<void()> end([handle] { mpv_terminate_destroy(handle); });
    const std::future<void> ended = end.get_future();
    try {
        std::thread(std::move(end)).detach();
    } catch (const std::system_error&) {
        return mpv_terminate_destroy(handle); // no more threads
    }
    ended.wait_for(kEndPatience);
}

void MpvPlayer::Free::operator()(mpv_render_context* context) const {
    mpv_render_context_free(context);
}

std::unique_ptr<MpvPlayer> MpvPlayer::make(Events events) {
    std::unique_ptr<MpvPlayer> player(new MpvPlayer(std::move(events)));
    return player->start() ? std::move(player) : nullptr;
}

MpvPlayer::MpvPlayer(Events events) : events_(std::move(events)) {}

MpvPlayer::~MpvPlayer() {
    if (render_)
        mpv_render_context_set_update_callback(render_.get(), nullptr, nullptr);
    if (mpv_)
        mpv_set_wakeup_callback(mpv_.get(), nullptr, nullptr);
}

bool MpvPlayer::start() {
    std::setlocale(LC_NUMERIC, "C");
    mpv_.reset(mpv_create());
    if (!mpv_ || !applySettings() || mpv_initialize(mpv_.get()) < 0)
        return false;

    char api[] = MPV_RENDER_API_TYPE_SW;
    mpv_render_param parameters[] = {{MPV_RENDER_PARAM_API_TYPE, api},
                                     {MPV_RENDER_PARAM_INVALID, nullptr}};
    mpv_render_context* context = nullptr;
    if (mpv_render_context_create(&context, mpv_.get(), parameters) < 0)
        return false;
    render_.reset(context);

    // Both are called on threads of libmpv.
    mpv_set_wakeup_callback(
        mpv_.get(),
        [](void* self) { static_cast<MpvPlayer*>(self)->wakeUpFor(&MpvPlayer::handleEvents); },
        this);
    mpv_render_context_set_update_callback(
        context,
        [](void* self) { static_cast<MpvPlayer*>(self)->wakeUpFor(&MpvPlayer::handleUpdate); },
        this);
    return true;
}

bool MpvPlayer::applySettings() {
    for (const Setting& setting : kSettings)
        if (mpv_set_option_string(mpv_.get(), setting.name, setting.value) < 0)
            return false;
    return qEnvironmentVariableIsEmpty("ORVALENTE_NO_SOUND") ||
           mpv_set_option_string(mpv_.get(), "ao", "null") >= 0;
}

void MpvPlayer::wakeUpFor(void (MpvPlayer::*task)()) {
    QMetaObject::invokeMethod(
        &loop_, [this, task] { (this->*task)(); }, Qt::QueuedConnection);
}

void MpvPlayer::handleEvents() {
    if (loading_)
        return;
    for (;;) {
        switch (mpv_wait_event(mpv_.get(), 0)->event_id) {
        case MPV_EVENT_NONE:
            return;
        case MPV_EVENT_PLAYBACK_RESTART:
            events_.standsAfterSeek();
            break;
        case MPV_EVENT_END_FILE:
            events_.fileEnded();
            break;
        default:
            break;
        }
    }
}

void MpvPlayer::handleUpdate() {
    if (mpv_render_context_update(render_.get()) & MPV_RENDER_UPDATE_FRAME)
        events_.pictureIsNew();
}

bool MpvPlayer::load(const QString& path) {
    const QScopedValueRollback<bool> loading(loading_, true);
    // The end of the file before is no news of this one.
    while (mpv_wait_event(mpv_.get(), 0)->event_id != MPV_EVENT_NONE) {
    }
    setPaused(true);
    const QByteArray name = path.toUtf8();
    const char* command[] = {"loadfile", name.constData(), nullptr};
    if (mpv_command(mpv_.get(), command) < 0)
        return false;
    if (waitForFirstPicture())
        return true;
    unload();
    return false;
}

bool MpvPlayer::waitForFirstPicture() {
    bool started = false;
    for (const QDeadlineTimer deadline(kLoadPatienceMs); !deadline.hasExpired();) {
        switch (mpv_wait_event(mpv_.get(), kLookSeconds)->event_id) {
        case MPV_EVENT_START_FILE:
            started = true;
            break;
        case MPV_EVENT_END_FILE:
            if (started)
                return false;
            break;
        case MPV_EVENT_PLAYBACK_RESTART:
            // A file of sound alone has nothing to show.
            return number("video-params/w").has_value();
        default:
            break;
        }
        // The file does not start before its first picture is taken.
        handleUpdate();
    }
    return false;
}

void MpvPlayer::unload() {
    const char* command[] = {"stop", nullptr};
    mpv_command(mpv_.get(), command);
}

void MpvPlayer::setPaused(bool paused) {
    int flag = paused;
    mpv_set_property(mpv_.get(), "pause", MPV_FORMAT_FLAG, &flag);
}

void MpvPlayer::seek(double seconds) {
    // QByteArray writes a point in every locale.
    const QByteArray time = QByteArray::number(seconds, 'f', 6);
    const char* command[] = {"seek", time.constData(), "absolute+exact", nullptr};
    mpv_command_async(mpv_.get(), 0, command);
}

std::optional<double> MpvPlayer::number(const char* property) const {
    double value = 0;
    if (mpv_get_property(mpv_.get(), property, MPV_FORMAT_DOUBLE, &value) < 0)
        return std::nullopt;
    return value;
}

bool MpvPlayer::atEndOfFile() const {
    int flag = 0;
    return mpv_get_property(mpv_.get(), "eof-reached", MPV_FORMAT_FLAG, &flag) >= 0 && flag;
}

QImage MpvPlayer::picture(QSize size) {
    QImage image(size, QImage::Format_RGB32);
    if (image.isNull())
        return image;
    int extent[] = {image.width(), image.height()};
    auto stride = static_cast<std::size_t>(image.bytesPerLine());
    int wait = 0;
    char format[] = "bgr0";
    mpv_render_param parameters[] = {{MPV_RENDER_PARAM_SW_SIZE, extent},
                                     {MPV_RENDER_PARAM_SW_FORMAT, format},
                                     {MPV_RENDER_PARAM_SW_STRIDE, &stride},
                                     {MPV_RENDER_PARAM_SW_POINTER, image.bits()},
                                     {MPV_RENDER_PARAM_BLOCK_FOR_TARGET_TIME, &wait},
                                     {MPV_RENDER_PARAM_INVALID, nullptr}};
    return mpv_render_context_render(render_.get(), parameters) < 0 ? QImage() : image;
}

} // namespace platform
