#include "platform/qt/qt_screen.h"
#include "support/fake_screen.h"

#include <QGuiApplication>
#include <QScreen>

#include <gtest/gtest.h>

TEST(Screen, anUnknownResolutionCountsAsFifteenTwipsAPixel) {
    test_support::FakeScreen screen(700);
    EXPECT_EQ(platform::widthPixels(screen), 700);
    screen.twipsPerPixel = 0;
    EXPECT_EQ(platform::widthPixels(screen), 700);
    screen.twipsPerPixel = 12;
    EXPECT_EQ(platform::widthPixels(screen), 875);
}

TEST(QtScreen, isMeasuredAsIfTheProgramWereNotEnlarged) {
    const QSize seen = QGuiApplication::primaryScreen()->size();
    EXPECT_EQ(platform::QtScreen().widthTwips(), seen.width() * 15);
    EXPECT_EQ(platform::QtScreen().heightTwips(), seen.height() * 15);
    EXPECT_EQ(platform::QtScreen(2).widthTwips(), seen.width() * 30);
    // Whole pixels, also where Qt has rounded.
    EXPECT_EQ(platform::QtScreen(1.3337).widthTwips(), std::round(seen.width() * 1.3337) * 15);
}
