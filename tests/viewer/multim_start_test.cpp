// The main window while it starts, and its size.

#include "viewer/cover.h"
#include "viewer/multim.h"
#include "viewer/window_bench.h"
#include "viewer/window_case.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>

#include <gmock/gmock.h>
namespace {

using platform::Answer;
using test_support::lines;
using test_support::page;
using test_support::Window;
using testing::ElementsAre;

/// A window manager that wants the window larger, whatever it asks for.
class StubbornManager : public QObject {
public:
    explicit StubbornManager(QWindow* managed) : QObject(managed), window(managed) {
        window->installEventFilter(this);
        window->resize(kSize);
    }
    static constexpr QSize kSize{1000, 700};
    QWindow* window;
    int requests = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Resize && window->size() != kSize) {
            ++requests;
            QTimer::singleShot(0, this, [this] { window->resize(kSize); });
        }
        return QObject::eventFilter(watched, event);
    }
};

TEST_F(Window, saysWhichFileOfACourseCannotBeRead) {
    bench.window.tellUnreadable(QStringLiteral("/cours/<b>Zekx.mdb"),
                                QStringLiteral("le fichier s’arrête avant son catalogue"));
    const auto* const notice = bench.control<QWidget>("notice");
    ASSERT_TRUE(notice && notice->isVisible());
    EXPECT_TRUE(bench.control<QWidget>("PictureTEXTE")->visibleRegion().isEmpty());
    const QString said = bench.control<QTextBrowser>("noticeText")->toPlainText();
    for (const char* const words : {"Ce cours ne peut pas être lu.", "/cours/<b>Zekx.mdb",
                                    "s’arrête avant son catalogue", "Réinstallez le cours"})
        EXPECT_TRUE(said.contains(QString::fromUtf8(words))) << words << said.toStdString();
}

TEST_F(Window, givesInToAManagerThatRefusesItsSize) {
    const StubbornManager manager(bench.window.windowHandle());
    for (int round = 0; round < 200; ++round)
        QApplication::processEvents();
    EXPECT_GT(manager.requests, 0);
    EXPECT_LE(manager.requests, 5);
    EXPECT_EQ(bench.window.size(), StubbornManager::kSize);
    // The contents stand in the middle, and work.
    EXPECT_EQ(bench.control("Command2")->mapTo(&bench.window, QPoint()), QPoint(108, 54));
    click("command5");
    EXPECT_EQ(shown(), QStringLiteral("30"));
}

TEST(WindowStart, fillsAScreenThatHasNoRoomForItsFrame) {
    for (const int height : {659, 660}) {
        test_support::WindowBench bench(test_support::course());
        bench.screen = test_support::FakeScreen(1024, height);
        bench.start();
        EXPECT_EQ(bench.window.isFullScreen(), height == 659) << height;
        EXPECT_FALSE(bench.zoom.leaveFilledScreen()); // it was not asked for, or must stay
    }
}

TEST(WindowStart, standsUnderItsCoverUntilTheFirstPage) {
    test_support::WindowBench bench(test_support::pages(25'000));
    QTemporaryDir directory;
    QImage picture(100, 60, QImage::Format_RGB32);
    picture.fill(Qt::red);
    ASSERT_TRUE(picture.save(directory.filePath(QStringLiteral("COUV1.JPG")), "JPG"));
    bench.state.InstallDir = directory.path() + u'/';
    auto* cover = static_cast<viewer::Cover*>(bench.control<QWidget>("cover"));
    QStringList seen;
    bool waited = false; // with the hourglass, once the window is on the screen
    QTimer turns;
    QObject::connect(&turns, &QTimer::timeout, [&] {
        waited = waited || (cover->isVisible() && bench.window.cursor().shape() == Qt::WaitCursor);
    });
    bench.whileStarting = [&] {
        EXPECT_FALSE(bench.window.isVisible());
        turns.start();
        // Later, while the index is built: the cover stands, and no button works.
        QTimer::singleShot(0, [&] {
            EXPECT_TRUE(cover->isVisible());
            EXPECT_EQ(cover->pictureRect(), QRect(262, 190, 100, 60));
            EXPECT_EQ(cover->labelRect().top(), 258);
            const QImage shown = cover->grab().toImage();
            EXPECT_GT(qRed(shown.pixel(312, 220)), 200);
            EXPECT_FALSE(bench.control<QWidget>("PictureTEXTE")->isVisible());
            EXPECT_FALSE(bench.state.PageByNumber.has_value());
            QTest::mouseClick(bench.control("Command3"), Qt::LeftButton);
            seen = bench.collaborators.log;
        });
        return true;
    };
    EXPECT_TRUE(bench.window.Form_Load());
    EXPECT_TRUE(waited);
    EXPECT_EQ(bench.window.cursor().shape(), Qt::ArrowCursor);
    EXPECT_FALSE(cover->isVisible());
    EXPECT_TRUE(bench.control<QWidget>("PictureTEXTE")->isVisible());
    EXPECT_EQ(seen, QStringList{});
    EXPECT_THAT(bench.history(), ElementsAre(1));
}

TEST(WindowStart, coverIsNeverLargerThanThePageArea) {
    viewer::Cover cover(nullptr);
    cover.resize(624, 440);
    QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("couv1.jpg"));
    QImage(3000, 1000, QImage::Format_RGB32).save(path, "JPG");
    cover.setPicture(path);
    EXPECT_TRUE(cover.rect().contains(cover.pictureRect()));
    EXPECT_TRUE(cover.rect().contains(cover.labelRect()));
    EXPECT_EQ(cover.pictureRect().width(), 622);
    cover.setPicture(directory.filePath(QStringLiteral("none.jpg")));
    EXPECT_TRUE(cover.pictureRect().isEmpty());
    EXPECT_TRUE(cover.rect().contains(cover.labelRect()));
}

TEST(WindowStart, endsWhenStartUpSaysSo) {
    test_support::WindowBench bench(test_support::pages(3));
    bench.whileStarting = [] { return false; };
    EXPECT_FALSE(bench.start().started);
    EXPECT_FALSE(bench.window.isVisible());
    EXPECT_EQ(bench.state.HistoryPos, 0);
}

TEST(WindowStart, closingMeanwhileEndsItWithoutAQuestion) {
    test_support::WindowBench bench(test_support::pages(25'000));
    bench.whileStarting = [&] {
        QTimer::singleShot(0, [&] { bench.window.close(); });
        return true;
    };
    EXPECT_FALSE(bench.start().started);
    EXPECT_TRUE(bench.messageBoxes.messages.empty());
    EXPECT_EQ(bench.state.HistoryPos, 0);
}

TEST(WindowStart, sizingByStartUpDoesNotArmTheRule) {
    test_support::WindowBench bench(test_support::pages(3));
    bench.whileStarting = [&] {
        bench.window.setWidth(800 * 15);
        bench.window.place({1000, 500, 12000, 9000});
        EXPECT_EQ(bench.state.DisplayWarningMode, 0);
        return true;
    };
    bench.start();
    EXPECT_EQ(bench.window.size(), QSize(800, 600));
    EXPECT_EQ(bench.state.DisplayWarningMode, 2); // the resize of appearing did
}

TEST(WindowStart, withoutDatabaseShowsAnEmptyPage) {
    test_support::WindowBench bench({});
    EXPECT_TRUE(bench.start().started);
    EXPECT_TRUE(bench.control<QWidget>("PictureTEXTE")->isVisibleTo(&bench.window));
    EXPECT_FALSE(bench.control<QWidget>("VScroll1")->isVisible());
}

} // namespace
