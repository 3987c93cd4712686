#include "support/fake_beeper.h"
#include "support/fake_prompter.h"
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
    void setFileName(const QString& path) override { log.append(u"file "_qs + path); }
    bool send(Command command) override {
        static constexpr const char* kNames[] = {"Open", "Close", "Play", "Stop",
                                                 "Step", "Pause", "Back", "Prev"};
        log.append(QString::fromLatin1(kNames[int(command)]));
        return command != Command::Open || opens;
    }
    void setFrom(int frame) override { log.append(u"from %1"_qs.arg(frame)); }
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
        QDir(work.path()).mkpath(u"course"_qs);
        QDir(work.path()).mkpath(u"e/ZEKXV"_qs);
        state.InstallDir = work.path() + u"/course/"_qs;
        drawing.videoPage = u"film.avi"_qs;
    }

    void put(const QString& file) { test_support::writeFile(work.filePath(file), "x"); }
    /// What the device is told, paths from the directory on.
    QStringList press(int index) {
        log.clear();
        video.press(index);
        return log.replaceInStrings(work.path() + u'/', QString());
    }
    QStringList openAndPress(int index) {
        put(u"course/film.avi"_qs);
        video.press(2);
        return press(index);
    }

    QSize pictureSize() const override { return {320, 240}; }
    void showPicture(const QImage&) override {}
    void setPictureVisible(bool visible) override {
        pictureShows = visible;
        log.append(visible ? u"show"_qs : u"hide"_qs);
    }
    void setMarkerWidth(double twips) override { marker = twips; }
    void setVideoStatus(const QString& words, bool) override { status = words; }
    void pumpPendingMessages() override { log.append(u"messages"_qs); }
    std::map<QChar, QString> letters() const override {
        return {{u'E', work.filePath(u"e"_qs)}, {u'Z', work.filePath(u"z"_qs)}};
    }

    QTemporaryDir work;
    shell::SharedState state;
    markup::DrawingState drawing;
    test_support::FakePrompter prompter;
    test_support::FakeBeeper beeper;
    coursedata::DataLocation location{state, *this, prompter, beeper};
    QStringList log;
    FakeDevice* device = nullptr;
    int devices = 0;
    bool opens = true;
    bool pictureShows = false;
    double marker = 0;
    QString status;
    viewer::PageVideo video{state, drawing, location, *this, [this] {
                                auto made = std::make_unique<FakeDevice>(log);
                                made->opens = opens;
                                device = made.get();
                                ++devices;
                                return made;
                            }};
};

TEST_F(PageVideo, firstButtonOpensAndShowsTheFirstFrame) {
    put(u"course/FILM.avi"_qs);
    video.close();
    EXPECT_EQ(devices, 0) << "a page turned";
    EXPECT_THAT(press(2), ElementsAre(u"hide"_qs, u"file course/FILM.avi"_qs, u"messages"_qs,
                                      u"Close"_qs, u"Open"_qs, u"show"_qs, u"from 0"_qs, u"Play"_qs,
                                      u"Stop"_qs, u"Pause"_qs));
    EXPECT_TRUE(state.VideoOpen);
    EXPECT_EQ(device->screen, static_cast<platform::VideoScreen*>(this));
    log.clear();
    video.close();
    EXPECT_THAT(log, ElementsAre(u"Close"_qs, u"hide"_qs));
    EXPECT_FALSE(state.VideoOpen);
    EXPECT_THAT(press(1), testing::Contains(u"Open"_qs));
    EXPECT_EQ(devices, 1);
}

TEST_F(PageVideo, eachButtonHasItsCommands) {
    EXPECT_THAT(openAndPress(0), ElementsAre(u"Play"_qs));
    EXPECT_THAT(press(1), ElementsAre(u"Step"_qs));
    EXPECT_THAT(press(2), ElementsAre(u"Pause"_qs));
    EXPECT_THAT(press(3), ElementsAre(u"Stop"_qs, u"from 0"_qs, u"Play"_qs, u"Stop"_qs));
    EXPECT_THAT(press(4), ElementsAre(u"Back"_qs));
    EXPECT_THAT(press(5), ElementsAre(u"from 9"_qs, u"Play"_qs, u"Stop"_qs));
    EXPECT_THAT(press(6), ElementsAre(u"Prev"_qs));
    device->at = 9; // the last frame stays until Play
    EXPECT_THAT(press(0), ElementsAre(u"from 0"_qs, u"Play"_qs, u"Stop"_qs, u"Play"_qs));
}

TEST_F(PageVideo, looksInTheCourseThenOnTheLastDiscThenEverywhere) {
    put(u"e/ZEKXV/film.avi"_qs);
    drawing.videoPage = u"D:\\autre\\film.avi"_qs;
    EXPECT_THAT(press(2), testing::Contains(u"file e/ZEKXV/film.avi"_qs));
    EXPECT_EQ(state.VideoDataDir, u"E:\\ZEKXV\\"_qs);
    EXPECT_EQ(drawing.videoPage, u"D:\\autre\\film.avi"_qs);
    ASSERT_TRUE(QDir(work.path()).mkpath(u"z/ZEKXV"_qs));
    put(u"z/ZEKXV/film.avi"_qs); // a later letter, but not the last disc
    video.close();
    EXPECT_THAT(press(2), testing::Contains(u"file e/ZEKXV/film.avi"_qs));
    put(u"course/film.avi"_qs);
    video.close();
    EXPECT_THAT(press(2), testing::Contains(u"file course/film.avi"_qs));
}

TEST_F(PageVideo, whatDoesNotOpenLeavesTheDisplay) {
    prompter.answers = {Answer::Retry, Answer::Cancel};
    EXPECT_THAT(press(0), ElementsAre(u"hide"_qs));
    EXPECT_EQ(prompter.messages.size(), 2u);
    EXPECT_EQ(devices + beeper.beeps, 1);

    drawing.videoPage.clear();
    EXPECT_THAT(press(0), ElementsAre(u"hide"_qs));

    drawing.videoPage = u"film.avi"_qs;
    put(u"course/film.avi"_qs);
    opens = false;
    EXPECT_EQ(press(0).last(), u"Open"_qs);
    EXPECT_FALSE(state.VideoOpen);
    EXPECT_FALSE(pictureShows);
}

TEST_F(PageVideo, markerFollowsThePositionUpToTheFrameBeforeTheLast) {
    openAndPress(0);
    device->at = 3;
    device->playing = true;
    device->listener->statusUpdated();
    EXPECT_DOUBLE_EQ(marker, 1085);
    EXPECT_EQ(status, u"Lecture en cours"_qs);
    device->at = 9;
    device->playing = false;
    device->listener->statusUpdated();
    EXPECT_DOUBLE_EQ(marker, 1085);
    EXPECT_EQ(status, u"À la fin"_qs);
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
    EXPECT_THAT(log, ElementsAre(u"from 0"_qs, u"Play"_qs, u"Stop"_qs));
}

TEST(VideoMenu, leadsToThePageWithTheCaptionAsItsTitle) {
    const QStringList captions = viewer::videoMenuCaptions(u"MENU01"_qs);
    ASSERT_THAT(captions, ElementsAre(u"Comment remplir un ballon avec un gaz coloré ?"_qs,
                                      u"Diffusion d'un gaz"_qs));
    EXPECT_TRUE(viewer::videoMenuCaptions(u"film.avi"_qs).isEmpty());

    auto pages = test_support::pages(12);
    for (const int position : {6, 9})
        pages[position][u"titre"_qs] = captions[1];
    const test_support::MemoryRecordset cours(pages);
    const auto target = [&](const QString& caption) {
        return viewer::videoMenuTarget(caption, &cours, u"PAG030"_qs).value_or(u"none"_qs);
    };
    EXPECT_EQ(target(captions[1]), u"PAG007"_qs);
    EXPECT_EQ(target(captions[0]), u"none"_qs);
    EXPECT_EQ(target(u"--"_qs), u"PAG030"_qs);
    EXPECT_FALSE(viewer::videoMenuTarget(captions[1], nullptr, {}));
}

} // namespace
