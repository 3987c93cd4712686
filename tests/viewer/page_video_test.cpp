#include "support/fake_beeper.h"
#include "support/fake_message_boxes.h"
#include "support/files.h"
#include "support/printing.h"
#include "viewer/course.h"
#include "viewer/page_video.h"
#include "viewer/video_menu.h"

#include <QDir>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace {

using platform::Answer;
using testing::ElementsAre;

/// A device of ten frames that notes its commands.
struct FakeDevice : platform::Video {
    explicit FakeDevice(QStringList& calls) : log(calls) {}

    void setScreen(platform::VideoScreen* window) override { screen = window; }
    void setListener(platform::VideoListener* told) override { listener = told; }
    void setFileName(const QString& path) override { log.append(QStringLiteral("file ") + path); }
    bool send(Command command) override {
        static constexpr const char* kNames[] = {"Open", "Close", "Play", "Stop",
                                                 "Step", "Pause", "Back", "Prev"};
        log.append(QString::fromLatin1(kNames[int(command)]));
        return command != Command::Open || opens;
    }
    void setFrom(int frame) override { log.append(QStringLiteral("from %1").arg(frame)); }
    int position() const override { return at; }
    int length() const override { return last; }
    bool isPlaying() const override { return playing; }

    QStringList& log;
    platform::VideoScreen* screen = nullptr;
    platform::VideoListener* listener = nullptr;
    bool opens = true;
    bool playing = false;
    int at = 0;
    int last = 9;
};

/// A page with the video film.avi, its files under one directory, and a drive E.
class PageVideo : public testing::Test, protected viewer::VideoView, protected platform::Drives {
protected:
    PageVideo() {
        QDir(work.path()).mkpath(QStringLiteral("course"));
        QDir(work.path()).mkpath(QStringLiteral("e/ZEKXV"));
        state.InstallDir = work.path() + QStringLiteral("/course/");
        shown.videoPage = QStringLiteral("film.avi");
    }

    void put(const QString& file) { test_support::writeFile(work.filePath(file), "x"); }
    /// What the device is told, paths from the directory on.
    QStringList press(int index) {
        log.clear();
        video.press(index);
        return log.replaceInStrings(work.path() + u'/', QString());
    }
    QStringList openAndPress(int index) {
        put(QStringLiteral("course/film.avi"));
        video.press(2);
        return press(index);
    }

    QSize pictureSize() const override { return {320, 240}; }
    void showPicture(const QImage&) override {}
    void setPictureVisible(bool visible) override {
        pictureShows = visible;
        log.append(visible ? QStringLiteral("show") : QStringLiteral("hide"));
    }
    void setMarkerWidth(double twips) override { marker = twips; }
    void setVideoStatus(const QString& words, bool, bool) override { status = words; }
    void pumpPendingMessages() override { log.append(QStringLiteral("messages")); }
    std::map<QChar, QString> letters() const override {
        return {{u'E', work.filePath(QStringLiteral("e"))},
                {u'Z', work.filePath(QStringLiteral("z"))}};
    }

    QTemporaryDir work;
    shell::SharedState state;
    markup::DrawnPage shown;
    test_support::FakeMessageBoxes messageBoxes;
    test_support::FakeBeeper beeper;
    coursedata::DataLocation location{state, *this, messageBoxes, beeper};
    QStringList log;
    FakeDevice* device = nullptr;
    int devices = 0;
    bool opens = true;
    bool pictureShows = false;
    double marker = 0;
    QString status;
    viewer::PageVideo video{state, shown, location, *this, [this] {
                                auto made = std::make_unique<FakeDevice>(log);
                                made->opens = opens;
                                device = made.get();
                                ++devices;
                                return made;
                            }};
};

TEST_F(PageVideo, firstButtonOpensAndShowsTheFirstFrame) {
    put(QStringLiteral("course/FILM.avi"));
    video.close();
    EXPECT_EQ(devices, 0) << "a page turned";
    EXPECT_THAT(press(2),
                ElementsAre(QStringLiteral("hide"), QStringLiteral("file course/FILM.avi"),
                            QStringLiteral("messages"), QStringLiteral("Close"),
                            QStringLiteral("Open"), QStringLiteral("show"),
                            QStringLiteral("from 0"), QStringLiteral("Play"),
                            QStringLiteral("Stop"), QStringLiteral("Pause")));
    EXPECT_TRUE(state.VideoOpen);
    EXPECT_EQ(device->screen, static_cast<platform::VideoScreen*>(this));
    log.clear();
    video.close();
    EXPECT_THAT(log, ElementsAre(QStringLiteral("Close"), QStringLiteral("hide")));
    EXPECT_FALSE(state.VideoOpen);
    EXPECT_THAT(press(1), testing::Contains(QStringLiteral("Open")));
    EXPECT_EQ(devices, 1);
}

TEST_F(PageVideo, eachButtonHasItsCommands) {
    EXPECT_THAT(openAndPress(0), ElementsAre(QStringLiteral("Play")));
    EXPECT_THAT(press(1), ElementsAre(QStringLiteral("Step")));
    EXPECT_THAT(press(2), ElementsAre(QStringLiteral("Pause")));
    EXPECT_THAT(press(3), ElementsAre(QStringLiteral("Stop"), QStringLiteral("from 0"),
                                      QStringLiteral("Play"), QStringLiteral("Stop")));
    EXPECT_THAT(press(4), ElementsAre(QStringLiteral("Back")));
    EXPECT_THAT(press(5), ElementsAre(QStringLiteral("from 9"), QStringLiteral("Play"),
                                      QStringLiteral("Stop")));
    EXPECT_THAT(press(6), ElementsAre(QStringLiteral("Prev")));
    device->at = 9; // the last frame stays until Play
    EXPECT_THAT(press(0), ElementsAre(QStringLiteral("from 0"), QStringLiteral("Play"),
                                      QStringLiteral("Stop"), QStringLiteral("Play")));
}

TEST_F(PageVideo, goesToAnyPlaceAndPlaysOnFromThere) {
    put(QStringLiteral("course/film.avi"));
    video.refresh();
    EXPECT_EQ(devices, 0) << "nothing is open";
    video.seek(1. / 3); // opens it
    EXPECT_THAT(
        log.mid(log.size() - 3),
        ElementsAre(QStringLiteral("from 3"), QStringLiteral("Play"), QStringLiteral("Stop")));
    const auto after = [&](auto action) {
        log.clear();
        action();
        return log.join(u' ');
    };
    device->playing = true;
    EXPECT_EQ(after([&] { video.seek(7); }), QStringLiteral("from 9 Play Stop Play"));
    EXPECT_EQ(after([&] { video.refresh(); }), QString());
    device->playing = false;
    device->at = 4;
    EXPECT_EQ(after([&] { video.refresh(); }), QStringLiteral("from 4 Play Stop"));
}

TEST_F(PageVideo, looksInTheCourseThenOnTheLastDiscThenEverywhere) {
    put(QStringLiteral("e/ZEKXV/film.avi"));
    shown.videoPage = QStringLiteral("D:\\autre\\film.avi");
    EXPECT_THAT(press(2), testing::Contains(QStringLiteral("file e/ZEKXV/film.avi")));
    EXPECT_EQ(state.VideoDataDir, QStringLiteral("E:\\ZEKXV\\"));
    EXPECT_EQ(shown.videoPage, QStringLiteral("D:\\autre\\film.avi"));
    ASSERT_TRUE(QDir(work.path()).mkpath(QStringLiteral("z/ZEKXV")));
    put(QStringLiteral("z/ZEKXV/film.avi")); // a later letter, but not the last disc
    video.close();
    EXPECT_THAT(press(2), testing::Contains(QStringLiteral("file e/ZEKXV/film.avi")));
    put(QStringLiteral("course/film.avi"));
    video.close();
    EXPECT_THAT(press(2), testing::Contains(QStringLiteral("file course/film.avi")));
}

TEST_F(PageVideo, whatDoesNotOpenLeavesTheDisplay) {
    messageBoxes.answers = {Answer::Retry, Answer::Cancel};
    EXPECT_THAT(press(0), ElementsAre(QStringLiteral("hide")));
    EXPECT_EQ(messageBoxes.messages.size(), 2u);
    EXPECT_EQ(devices + beeper.beeps, 1);

    shown.videoPage.reset();
    EXPECT_THAT(press(0), ElementsAre(QStringLiteral("hide")));

    shown.videoPage = QStringLiteral("film.avi");
    put(QStringLiteral("course/film.avi"));
    opens = false;
    EXPECT_EQ(press(0).last(), QStringLiteral("Open"));
    EXPECT_FALSE(state.VideoOpen);
    EXPECT_FALSE(pictureShows);
}

TEST_F(PageVideo, markerFollowsThePositionUpToTheFrameBeforeTheLast) {
    openAndPress(0);
    device->at = 3;
    device->playing = true;
    device->listener->statusUpdated();
    EXPECT_DOUBLE_EQ(marker, 1085);
    EXPECT_EQ(status, QStringLiteral("Lecture en cours"));
    device->at = 9;
    device->playing = false;
    device->listener->statusUpdated();
    EXPECT_DOUBLE_EQ(marker, 1085);
    EXPECT_EQ(status, QStringLiteral("À la fin"));
    device->at = device->last = 0; // a single frame
    device->listener->statusUpdated();
    EXPECT_DOUBLE_EQ(marker, 1085);
}

TEST_F(PageVideo, rewindsWhenAPlayEndsOnTheLastFrame) {
    openAndPress(0);
    log.clear();
    device->at = 5;
    device->listener->playEnded();
    EXPECT_TRUE(log.isEmpty());
    device->at = 9;
    device->listener->playEnded();
    EXPECT_THAT(
        log, ElementsAre(QStringLiteral("from 0"), QStringLiteral("Play"), QStringLiteral("Stop")));
}

TEST(VideoMenu, leadsToThePageWithTheCaptionAsItsTitle) {
    const QStringList captions = viewer::videoMenuCaptions(QStringLiteral("MENU01"));
    ASSERT_THAT(captions,
                ElementsAre(QStringLiteral("Comment remplir un ballon avec un gaz coloré ?"),
                            QStringLiteral("Diffusion d'un gaz")));
    EXPECT_TRUE(viewer::videoMenuCaptions(QStringLiteral("film.avi")).isEmpty());

    auto pages = test_support::pages(12);
    for (const int position : {6, 9})
        pages[position][QStringLiteral("titre")] = captions[1];
    const test_support::MemoryRecordset cours(pages);
    const auto target = [&](const QString& caption) {
        return viewer::videoMenuTarget(caption, &cours, QStringLiteral("PAG030"))
            .value_or(QStringLiteral("none"));
    };
    EXPECT_EQ(target(captions[1]), QStringLiteral("PAG007"));
    EXPECT_EQ(target(captions[0]), QStringLiteral("none"));
    EXPECT_EQ(target(QStringLiteral("--")), QStringLiteral("PAG030"));
    EXPECT_FALSE(viewer::videoMenuTarget(captions[1], nullptr, {}));
}

} // namespace
