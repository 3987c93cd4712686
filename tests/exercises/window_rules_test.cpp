#include "exercises/placement.h"
#include "exercises/title_band.h"
#include "support/fake_screen.h"

#include <gtest/gtest.h>

namespace exercises {
namespace {

TEST(TitleBand, fadesFromPaleYellowToWhite) {
    EXPECT_EQ(titleInk(1, 40), qRgb(255, 255, 158)); // 157.5
    EXPECT_EQ(titleInk(3, 40), qRgb(255, 255, 162)); // 162.5
    EXPECT_EQ(titleInk(29, 29), qRgb(255, 255, 255));
}

TEST(Placement, goesByTheScreen) {
    EXPECT_FALSE(liesOverMainWindow(test_support::FakeScreen(850)));
    EXPECT_TRUE(liesOverMainWindow(test_support::FakeScreen(850.001)));
    EXPECT_FALSE(liesOverMainWindow(test_support::FakeScreen(850.00001))); // single precision
}

} // namespace
} // namespace exercises
