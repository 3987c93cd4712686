#pragma once

#include <QByteArray>
#include <QImage>
#include <QObject>
#include <QSize>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

struct mpv_event;
struct mpv_handle;
struct mpv_render_context;

namespace platform {

/// libmpv with the settings of this program, its pictures drawn into images. All its functions are
/// for one thread, which has an event loop.
class MpvPlayer {
public:
    /// Told from the event loop.
    struct Events {
        std::function<void()> standsAfterSeek;
        std::function<void()> fileEnded; ///< it can be played no longer
        std::function<void()> pictureIsNew;
    };

    /// Null when libmpv does not start.
    static std::unique_ptr<MpvPlayer> make(Events events);
    ~MpvPlayer();
    MpvPlayer(const MpvPlayer&) = delete;
    MpvPlayer& operator=(const MpvPlayer&) = delete;

    /// Loads a file, paused at its start; waits until its first picture is there. False when it has
    /// none or when that takes too long.
    bool load(const QString& path);
    void unload();

    void setPaused(bool paused);
    /// Starts on the way to the first frame at or after a time in seconds.
    void seek(double seconds);

    /// Of a numeric property; nothing when it has no value now.
    std::optional<double> number(const char* property) const;
    bool atEndOfFile() const;

    /// The present picture at this size, with black margins where its proportions differ.
    QImage picture(QSize size);

private:
    explicit MpvPlayer(Events events);

    bool start();
    bool applySettings();
    void wakeUpFor(void (MpvPlayer::*task)());
    void handleEvents();
    void handleUpdate();
    bool waitForFirstPicture();

    struct Terminate {
        void operator()(mpv_handle* handle) const;
    };
    struct Free {
        void operator()(mpv_render_context* context) const;
    };

    Events events_;
    QObject loop_; ///< what arrives on other threads goes through the event loop of this one
    std::unique_ptr<mpv_handle, Terminate> mpv_;
    std::unique_ptr<mpv_render_context, Free> render_; ///< ends before the handle
    bool loading_ = false;
};

} // namespace platform
