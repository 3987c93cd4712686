#include "shell/display_check.h"
#include "support/fake_screen.h"

#include <gtest/gtest.h>

using shell::Placement;
using test_support::FakeScreen;

TEST(DisplayCheck, hasTwoThresholds) {
    const struct {
        double width;
        bool tooNarrow, centres;
    } rows[] = {{640, true, false},
                {699, true, false},
                {700, false, false},
                {810, false, false},
                {811, false, true}};
    for (const auto& row : rows) {
        EXPECT_EQ(shell::isTooNarrow(FakeScreen(row.width)), row.tooNarrow) << row.width;
        EXPECT_EQ(shell::isWideEnoughToCentre(FakeScreen(row.width)), row.centres) << row.width;
    }
}

TEST(DisplayCheck, knowsAScreenWithoutRoomForAFrame) {
    EXPECT_TRUE(shell::hasNoRoomForAFrame(FakeScreen(1024, 659)));
    EXPECT_FALSE(shell::hasNoRoomForAFrame(FakeScreen(800, 660)));
    FakeScreen enlarged(1600, 1319);
    enlarged.factor = 2;
    EXPECT_TRUE(shell::hasNoRoomForAFrame(enlarged));
}

TEST(DisplayCheck, centresAWindowOfFixedSize) {
    FakeScreen screen(1024, 500);
    EXPECT_EQ(shell::centredWindow(screen), (Placement{112 * 15, -50 * 15, 12000, 9000}));
    // Enlarged twice, the window covers 1600 of 1920 pixels and counts 960 of its own in all.
    screen = FakeScreen(1920, 1400);
    screen.factor = 2;
    EXPECT_EQ(shell::centredWindow(screen), (Placement{80 * 15, 50 * 15, 12000, 9000}));
}
