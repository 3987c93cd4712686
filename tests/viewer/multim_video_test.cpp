#include "look/reduced_light.h"
#include "viewer/window_case.h"

#include <QMenu>
#include <QScrollBar>

#include <gmock/gmock.h>

#include <algorithm>

namespace {

using test_support::page;
using testing::ElementsAre;

/// The main window on pages with a video, with a choice of videos, and with one of the choice.
class VideoWindow : public test_support::Window {
protected:
    VideoWindow() {
        bench.cours.records[4] =
            page(5, QStringLiteral("##VIDEOfilm.avi\r\n") + test_support::lines(30));
        bench.cours.records[5] = page(6, QStringLiteral("##VIDEOMENU01\r\nTexte¶\r\n"));
        bench.cours.records[6] =
            page(7, {}, {{QStringLiteral("titre"), QStringLiteral("Diffusion d'un gaz")}});
    }

    void show(int number) {
        Window::show(number);
        bench.collaborators.log.clear();
    }
    QWidget* frame() { return bench.control<QWidget>("videoFrame"); }
    QMenu* menu() {
        for (QMenu* each : bench.window.findChildren<QMenu*>(QStringLiteral("MVideo")))
            if (each->isVisible())
                return each;
        return nullptr;
    }
};

TEST_F(VideoWindow, keysWorkOnTheFrameAndItsButtons) {
    show(5);
    click("Image4_0"); // leads the keyboard here
    ASSERT_TRUE(frame()->hasFocus());
    const int before = scrolled();
    bench.window.setVideoStatus(QStringLiteral("Lecture en cours"), true, false);
    QTest::keyClick(frame(), Qt::Key_Space);
    bench.window.setVideoStatus(QStringLiteral("En pause"), false, false);
    for (const int key : {Qt::Key_Space, Qt::Key_Right, Qt::Key_Left, Qt::Key_Home, Qt::Key_End})
        QTest::keyClick(frame(), Qt::Key(key));
    bench.control("Image4_3")->setFocus(Qt::TabFocusReason);
    for (const int key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Space})
        QTest::keyClick(bench.control("Image4_3"), Qt::Key(key));
    QStringList pressed = bench.collaborators.log.filter(QStringLiteral("video "));
    EXPECT_EQ(pressed.replaceInStrings(QStringLiteral("video "), QString()).join(u' '),
              QStringLiteral("0 2 0 1 4 6 5 1 4 3"));
    EXPECT_EQ(scrolled(), before);
    QTest::keyClick(frame(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(shown(), QStringLiteral("1"));
    EXPECT_TRUE(bench.control<QWidget>("PictureTEXTE")->hasFocus())
        << "the video goes with its page, the keyboard stays with the next one";
}

TEST_F(VideoWindow, aVideoIsShownAtDoubleSizeAndBack) {
    auto* projo = bench.control<QWidget>("projo");
    auto* size = bench.control("videoSize");
    const auto isDouble = [&] { return projo->size() == QSize(640, 480); };
    show(5);
    EXPECT_FALSE(size->isVisible()) << "there is no picture yet";
    bench.window.setPictureVisible(true);
    ASSERT_TRUE(size->isVisible());
    click("videoSize");
    EXPECT_TRUE(isDouble());
    EXPECT_EQ(size->text(), "Taille normale");
    EXPECT_TRUE(frame()->rect().contains(projo->geometry()));
    bench.window.setPictureVisible(true); // it is opened anew
    EXPECT_TRUE(isDouble());
    for (const char* name : {"Image4_6", "Image4_5", "videoSize"}) {
        const QWidget* control = bench.control(name);
        const QRect place(control->mapTo(frame(), QPoint()), control->size());
        EXPECT_FALSE(place.intersects(projo->geometry())) << name;
        EXPECT_TRUE(frame()->rect().contains(place)) << name;
    }
    // The track is wider here; a click leads as far into the video as it stands on it.
    bench.collaborators.log.clear();
    QTest::mouseClick(frame(), Qt::LeftButton, {}, QPoint(305 + 271 / 2, 512));
    EXPECT_TRUE(bench.collaborators.log.last().startsWith("seek 0.49"))
        << qPrintable(bench.collaborators.log.last());
    QTest::keyClick(frame(), Qt::Key_Escape);
    EXPECT_EQ(projo->size(), QSize(320, 240));

    bench.window.showPicture(QImage(4, 4, QImage::Format_RGB32));
    bench.collaborators.log.clear();
    QTest::mouseClick(projo, Qt::LeftButton);
    QMouseEvent second(QEvent::MouseButtonDblClick, QPointF(5, 5), projo->mapToGlobal(QPoint(5, 5)),
                       Qt::LeftButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(projo, &second);
    EXPECT_TRUE(isDouble());
    EXPECT_EQ(bench.collaborators.log.size() % 2, 0) << "what the first click did is taken back";
    show(6);
    EXPECT_FALSE(size->isVisible()) << "a choice of videos has one size";
    EXPECT_EQ(projo->size(), QSize(320, 240));
}

TEST_F(VideoWindow, aVideoKeepsItsColoursInReducedLight) {
    show(5);
    bench.window.setPictureVisible(true);
    QImage frame(320, 240, QImage::Format_RGB32);
    // As frames come: red, with nothing in the byte of the opacity.
    std::fill_n(reinterpret_cast<QRgb*>(frame.bits()), frame.width() * frame.height(), 0x00ff0000U);
    bench.window.showPicture(frame);
    look::ReducedLight light;
    light.setOn(true);
    const QImage seen = bench.window.grab().toImage();
    light.setOn(false);
    EXPECT_EQ(QColor(seen.pixel(QPoint(336, 424))).name(), "#cc0000");
    EXPECT_LT(QColor(seen.pixel(QPoint(780, 424))).lightness(), 60) << "the frame around it";
}

TEST_F(VideoWindow, pointerPlaysAndSeeks) {
    show(5);
    bench.window.setPictureVisible(true);
    bench.window.showPicture(QImage(320, 240, QImage::Format_RGB32));
    click("projo");
    bench.window.setVideoStatus(QStringLiteral("Lecture en cours"), true, false);
    click("projo");
    const QPoint track(399, frame()->height() - 12);                        // its left end
    QTest::mousePress(frame(), Qt::LeftButton, {}, track + QPoint(217, 8)); // a little below
    QTest::mouseMove(frame(), track - QPoint(50, 30));
    QTest::mouseRelease(frame(), Qt::LeftButton, {}, track - QPoint(50, 30));
    QTest::mouseMove(frame(), track + QPoint(50, 0));
    QTest::mouseClick(frame(), Qt::LeftButton, {}, track - QPoint(20, 0)); // beside it
    EXPECT_EQ(bench.collaborators.log.filter(QStringLiteral("e")).join(u' '),
              QStringLiteral("video 0 video 2 seek 1 seek 0"));
}

TEST_F(VideoWindow, barIsFullOnTheLastFrame) {
    show(5);
    bench.window.setMarkerWidth(3000);
    const auto lastColumn = [&] {
        return frame()->grab().toImage().pixelColor(399 + 214, frame()->height() - 12);
    };
    bench.window.setVideoStatus(QStringLiteral("En pause"), false, false);
    const QColor empty = lastColumn();
    bench.window.setVideoStatus(QStringLiteral("À la fin"), false, true);
    EXPECT_NE(lastColumn(), empty);
}

TEST_F(VideoWindow, pictureComesAndGoesUnderTheSamePage) {
    show(5);
    auto* bar = bench.control<QScrollBar>("VScroll1");
    QTest::qWait(0);
    press(Qt::Key_PageDown);
    const int at = scrolled();
    EXPECT_GT(at, 0);
    const int range = bar->minimum();
    bench.window.setPictureVisible(true);
    EXPECT_TRUE(bench.control<QWidget>("projo")->isVisible());
    EXPECT_EQ(scrolled(), at);
    EXPECT_EQ(bar->minimum(), range - (352 - 160) * 15);
    bench.window.setPictureVisible(false);
    EXPECT_FALSE(bench.control<QWidget>("projo")->isVisible());
    EXPECT_EQ(bar->minimum(), range);
    // Nothing to show on a page without a video.
    show(3);
    bench.window.setPictureVisible(true);
    EXPECT_FALSE(frame()->isVisible());
}

TEST_F(VideoWindow, menuOfThePictureLeadsToTheChosenPage) {
    show(5);
    click("projo");
    EXPECT_EQ(menu(), nullptr);
    show(6);
    for (const char* control : {"projo", "Image4_0"}) {
        ASSERT_TRUE(bench.control<QWidget>(control)->isVisible());
        click(control);
        ASSERT_TRUE(menu()) << control;
        EXPECT_EQ(menu()->actions().size(), 2);
        menu()->close();
    }
    QTest::keyClick(frame(), Qt::Key_Space);
    ASSERT_TRUE(menu());
    EXPECT_TRUE(bench.collaborators.log.isEmpty());
    // A page that does not exist: only the picture goes.
    menu()->actions()[0]->trigger();
    EXPECT_EQ(shown(), QStringLiteral("6"));
    EXPECT_THAT(bench.collaborators.log, ElementsAre(QStringLiteral("close video")));
    menu()->actions()[1]->trigger();
    EXPECT_EQ(shown(), QStringLiteral("7"));
}

} // namespace
