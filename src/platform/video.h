#pragma once

#include <QImage>
#include <QSize>
#include <QString>

namespace platform {

/// Where a video device shows its picture.
class VideoScreen {
public:
    virtual ~VideoScreen() = default;
    /// In the pixels of the device; empty while there is nowhere to show one.
    virtual QSize pictureSize() const = 0;
    /// A picture of that size.
    virtual void showPicture(const QImage& picture) = 0;
};

/// What a video device tells.
class VideoListener {
public:
    virtual ~VideoListener() = default;
    /// Regularly while the device plays, and whenever another frame has come to stand.
    virtual void statusUpdated() = 0;
    /// A Play has run to the end; told from the event loop. Reaching the last frame in any other
    /// way tells nothing.
    virtual void playEnded() = 0;
};

/// A device for video files in the AVI format, driven the way of MCI devices. Positions are frames,
/// from 0. What follows a command may take a moment; until then the device answers as if it had
/// been done.
class Video {
public:
    enum class Command {
        Open,  ///< the file; its first frame shows. It may take seconds from a disc
        Close, ///< gives the file back; the picture shown last is left to the screen
        Play,  ///< from the start position if one was set, from the present position otherwise
        Stop,  ///< the frame stays shown, a Play that has not begun comes no further than it
        Step,  ///< to the next frame, and stands there; at the last one nothing changes
        Pause, ///< the frame stays shown
        Back,  ///< to the frame before, and stands there; at the first one nothing changes
        Prev,  ///< to the first frame, and stands there
    };

    virtual ~Video() = default;

    /// Both may be null; they must live until they are replaced.
    virtual void setScreen(VideoScreen* screen) = 0;
    virtual void setListener(VideoListener* listener) = 0;

    /// Path of the file that the next Open opens.
    virtual void setFileName(const QString& path) = 0;

    /// False when it could not be done: the file is missing or no video that can be shown, or, for
    /// all but Open and Close, none is open. Nothing is shown then.
    virtual bool send(Command command) = 0;

    /// Where the next Play starts; beyond the end, the last frame.
    virtual void setFrom(int frame) = 0;

    /// 0 to length(); 0 while nothing is open.
    virtual int position() const = 0;
    /// The position of the last frame. It shrinks when playing shows that the file ends early.
    virtual int length() const = 0;
    virtual bool isPlaying() const = 0;
};

} // namespace platform
