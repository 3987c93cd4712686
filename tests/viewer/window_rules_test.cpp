#include "look/scroll_geometry.h"
#include "support/fake_screen.h"
#include "viewer/key_map.h"
#include "viewer/window_size_rule.h"

#include <gtest/gtest.h>

namespace {

using viewer::KeyCommand;
using viewer::WindowSizeRule;

TEST(KeyMap, knowsTheKeysOfThePage) {
    struct Row {
        int key;
        Qt::KeyboardModifiers modifiers;
        std::optional<KeyCommand> command;
    };
    const Row rows[] = {
        {Qt::Key_PageDown, Qt::NoModifier, KeyCommand::ScreenDown},
        {Qt::Key_Home, Qt::KeypadModifier, KeyCommand::Top},
        {Qt::Key_Up, Qt::NoModifier, KeyCommand::LineUp},
        {Qt::Key_Up, Qt::AltModifier, std::nullopt},
        {Qt::Key_Left, Qt::NoModifier, std::nullopt},
        {Qt::Key_Left, Qt::AltModifier, KeyCommand::HistoryBack},
        {Qt::Key_Right, Qt::AltModifier, KeyCommand::HistoryForward},
        {Qt::Key_Backspace, Qt::NoModifier, KeyCommand::HistoryBack},
        {Qt::Key_Backspace, Qt::ControlModifier, std::nullopt},
        {Qt::Key_A, Qt::NoModifier, std::nullopt},
    };
    for (const Row& row : rows)
        EXPECT_EQ(viewer::keyCommand(row.key, row.modifiers), row.command) << row.key;
}

TEST(ScrollGeometry, runsFromZeroDownToWhatThePageIsTaller) {
    const look::ScrollGeometry tall{6000, 15000};
    EXPECT_TRUE(tall.isNeeded());
    EXPECT_EQ(tall.maximum(), -9000);
    EXPECT_EQ(tall.largeChange(), 5985);
    EXPECT_EQ(tall.held(-20000), -9000);
    EXPECT_EQ(tall.held(5), 0);
    EXPECT_FALSE((look::ScrollGeometry{6000, 6000}).isNeeded());
    EXPECT_EQ((look::ScrollGeometry{6000, 100}).held(-50), 0);
}

class WindowSizes : public testing::Test {
protected:
    using Orders = WindowSizeRule::Orders;

    static constexpr WindowSizeRule::Window kRight{true, true};
    static constexpr WindowSizeRule::Window kOther{true, false};
    static constexpr WindowSizeRule::Window kMaximised{false, false};
    static constexpr Orders kNothing{};
    static constexpr Orders kBack{false, true, true};
    static constexpr Orders kOutOfMaximised{true, true, true};
    static constexpr Orders kSizeOnly{false, false, true};

    shell::SharedState state;
    test_support::FakeScreen screen;
    WindowSizeRule rule{state, screen};
};

TEST_F(WindowSizes, firstResizeOnlyArmsTheRule) {
    EXPECT_EQ(rule.resized(kMaximised), kNothing);
    EXPECT_EQ(state.DisplayWarningMode, 2);
    EXPECT_EQ(rule.resized(kMaximised), kOutOfMaximised);
    EXPECT_EQ(rule.resized(kOther), kBack);
    EXPECT_EQ(rule.resized(kRight), kNothing);
}

TEST_F(WindowSizes, firstResizeGivesANormalWindowItsSizeAllTheSame) {
    EXPECT_EQ(rule.resized(kOther), kSizeOnly);
}

TEST_F(WindowSizes, narrowScreenLetsTheWindowBeMaximised) {
    screen.width = 810 * 15;
    for (int event = 0; event < 3; ++event) {
        EXPECT_EQ(rule.resized(kMaximised), kNothing);
        EXPECT_EQ(rule.resized(kOther), kSizeOnly);
        rule.settled(kRight);
    }
    EXPECT_EQ(state.DisplayWarningMode, 0);
    screen.width = 811 * 15;
    rule.resized(kMaximised);
    EXPECT_EQ(state.DisplayWarningMode, 2);
}

TEST_F(WindowSizes, givesUpAgainstAManagerThatRefuses) {
    int orders = 0;
    for (int event = 0; event < 100; ++event)
        orders += rule.resized(kOther) != kNothing;
    EXPECT_LE(orders, 5);
    rule.settled(kOther); // it took its time and still refuses
    EXPECT_EQ(rule.resized(kOther), kNothing);
    rule.settled(kRight); // it gave in
    EXPECT_EQ(rule.resized(kOther), kBack);
}

TEST_F(WindowSizes, keepsOnWhileTheManagerFollows) {
    rule.resized(kRight);
    for (int event = 0; event < 100; ++event) {
        EXPECT_EQ(rule.resized(kOther), kBack);
        rule.settled(kRight);
    }
}

} // namespace
