#include "platform/mpv/mpv_video.h"
#include "platform_mpv/clips.h"
#include "support/files.h"
#include "support/french_locale.h"

#include <QElapsedTimer>

namespace {

using platform::Video;
using test_support::Clip;
using test_support::eventually;
using Command = Video::Command;

/// The device on a screen that reads the numbers of the frames.
class MpvVideo : public testing::Test,
                 protected platform::VideoScreen,
                 protected platform::VideoListener {
protected:
    MpvVideo() {
        qputenv("ORVALENTE_NO_SOUND", "1");
        restart();
    }

    void restart() {
        video = platform::makeMpvVideo();
        ASSERT_TRUE(video);
        video->setScreen(this);
        video->setListener(this);
    }

    bool open(const QString& path) {
        shown = -1;
        video->setFileName(path);
        return video->send(Command::Open);
    }
    void open(const Clip& clip) { ASSERT_TRUE(open(clip.make(directory))) << clip.name; }

    void playFrom(int frame) {
        video->setFrom(frame);
        video->send(Command::Play);
    }
    /// Shows a frame the way the buttons do.
    void show(int frame) {
        playFrom(frame);
        video->send(Command::Stop);
    }

    testing::AssertionResult stands(int frame) {
        const bool there = eventually([&] { return shown == frame; });
        const int position = video->position();
        if (there && position == frame && !video->isPlaying())
            return testing::AssertionSuccess();
        return testing::AssertionFailure()
               << "frame " << shown << " at position " << position << " instead of " << frame;
    }

    QSize pictureSize() const override { return Clip::kSize; }
    void showPicture(const QImage& picture) override { shown = Clip::numberIn(picture); }
    void statusUpdated() override { largest = std::max(largest, video->position()); }
    void playEnded() override { ++ended; }

    QTemporaryDir directory;
    std::unique_ptr<Video> video;
    int shown = -1; ///< number of the frame on the screen
    int largest = 0;
    int ended = 0;
};

TEST_F(MpvVideo, stepsAndSeeksFrameByFrame) {
    const Clip clips[] = {
        {"mjpeg", "mjpeg", "10", 24},
        {"cinepak", "cinepak", "12.5", 24, 2},
        {"video1", "msvideo1", "15", 24, 1.6},
        {"raw", "rawvideo", "1000000/66667", 24, 0, "-pix_fmt bgr24"},
        {"mpeg4", "mpeg4", "25", 24, 1, "-g 250 -qscale:v 3"},
        {"ntsc", "mjpeg", "30000/1001", 24, 3},
        {"fast", "mjpeg", "30", 24},
    };
    for (const Clip& clip : clips) {
        SCOPED_TRACE(clip.name);
        open(clip);
        const int last = clip.frames - 1;
        EXPECT_EQ(video->length(), last);
        EXPECT_TRUE(stands(0));
        for (int frame = 1; frame <= last; ++frame) {
            video->send(Command::Step);
            ASSERT_TRUE(stands(frame));
        }
        video->send(Command::Step);
        EXPECT_TRUE(stands(last));
        for (int frame = last - 1; frame >= 0; --frame) {
            video->send(Command::Back);
            ASSERT_TRUE(stands(frame));
        }
        for (const int frame : {17, 3, last, 1, last + 100, 12}) {
            show(frame);
            ASSERT_TRUE(stands(std::min(frame, last)));
        }
        video->send(Command::Prev);
        EXPECT_TRUE(stands(0));
    }
    EXPECT_EQ(ended, 0);
}

TEST_F(MpvVideo, ofHurriedCommandsNoneIsLost) {
    open({"film", "mjpeg", "25", 60, 2.4});
    for (int i = 0; i < 20; ++i)
        video->send(Command::Step);
    for (int i = 0; i < 7; ++i)
        video->send(Command::Back);
    EXPECT_EQ(video->position(), 13);
    EXPECT_TRUE(stands(13));
}

TEST_F(MpvVideo, playsToTheEndOnceAndTellsSo) {
    for (const double sound : {0.0, 1.0, 4.0}) { // as long as the pictures is 1.2
        SCOPED_TRACE(sound);
        open({"film", "mjpeg", "20", 24, sound});
        ended = largest = 0;
        playFrom(5);
        EXPECT_TRUE(video->isPlaying());
        ASSERT_TRUE(eventually([&] { return ended > 0; }));
        EXPECT_TRUE(stands(23));
        EXPECT_EQ(largest, 23);
        video->send(Command::Play); // from the end, at once
        ASSERT_TRUE(eventually([&] { return ended > 1; }));
        show(23);
        EXPECT_TRUE(stands(23));
        EXPECT_EQ(ended, 2);
    }
}

TEST_F(MpvVideo, pauseAndStopKeepTheFrame) {
    open({"film", "mjpeg", "25", 100});
    for (const Command command : {Command::Pause, Command::Stop, Command::Step, Command::Back}) {
        playFrom(10);
        ASSERT_TRUE(eventually([&] { return shown > 15; }));
        video->send(command);
        EXPECT_FALSE(video->isPlaying());
        ASSERT_TRUE(eventually([&] { return shown == video->position(); }));
        EXPECT_TRUE(stands(video->position()));
    }
    EXPECT_EQ(ended, 0);
}

TEST_F(MpvVideo, fileThatEndsEarlyEndsWhereItDoes) {
    const QByteArray whole =
        test_support::readFile(Clip{"whole", "mjpeg", "25", 50}.make(directory));
    const QString path = directory.filePath(QStringLiteral("cut.avi"));
    test_support::writeFile(path, whole.left(whole.size() / 3));
    ASSERT_TRUE(open(path));
    EXPECT_EQ(video->length(), 49);
    video->send(Command::Play);
    ASSERT_TRUE(eventually([&] { return ended == 1; }));
    EXPECT_LT(video->length(), 25);
    EXPECT_EQ(video->position(), video->length());
    show(0);
    EXPECT_TRUE(stands(0));
}

TEST_F(MpvVideo, whatIsNoVideoDoesNotOpen) {
    const QByteArray whole =
        test_support::readFile(Clip{"whole", "mjpeg", "25", 10}.make(directory));
    QByteArray otherCodec = whole;
    otherCodec.replace("MJPG", "ZZZZ");
    const QByteArray noVideos[] = {
        {},
        "RIFF",
        whole.left(12),
        whole.left(200),
        otherCodec,
        "#EXTM3U\n" + directory.filePath(QStringLiteral("whole.avi")).toUtf8(),
        whole.mid(1),
    };
    for (const QByteArray& bytes : noVideos) {
        const QString path = directory.filePath(QStringLiteral("no.avi"));
        test_support::writeFile(path, bytes);
        EXPECT_FALSE(open(path)) << bytes.left(40).constData();
        EXPECT_FALSE(video->send(Command::Play));
        EXPECT_EQ(video->position(), 0);
    }
    EXPECT_FALSE(open(directory.filePath(QStringLiteral("missing.avi"))));
    EXPECT_FALSE(open(directory.path()));
    EXPECT_EQ(shown, -1);
    // And the next one does.
    EXPECT_TRUE(open(directory.filePath(QStringLiteral("whole.avi"))));
    EXPECT_TRUE(stands(0));
}

TEST_F(MpvVideo, closesAndEndsWhilePlaying) {
    const QString path = Clip{"film", "mjpeg", "25", 100, 4}.make(directory);
    for (int i = 0; i < 5; ++i) {
        ASSERT_TRUE(open(path));
        playFrom(50);
        ASSERT_TRUE(eventually([&] { return shown > 52; }));
        if (i % 2) {
            restart();
            continue;
        }
        video->send(Command::Close);
        EXPECT_FALSE(video->isPlaying());
        EXPECT_FALSE(video->send(Command::Step));
    }
    ASSERT_TRUE(open(path));
    show(99); // and on the way to a frame
    video.reset();
    EXPECT_EQ(ended, 0);
}

TEST_F(MpvVideo, worksInAFrenchLocale) {
    video.reset();
    const test_support::FrenchLocale french;
    restart();
    open({"film", "mjpeg", "12.5", 30});
    show(21);
    EXPECT_TRUE(stands(21));
}

} // namespace
