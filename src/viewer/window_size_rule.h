#pragma once

#include "platform/screen.h"
#include "shell/shared_state.h"

#include <QSize>

namespace viewer {

/// Of the main window's contents, in pixels; its frame is the window manager's.
inline constexpr QSize kWindowSize(800, 600);

/// Keeps the main window at its size. On a screen wide enough to centre it, the window can be
/// neither resized nor maximised; on a narrower one it can be maximised, and has its fixed size in
/// its normal state.
///
/// A window manager that lays windows out itself answers each request with its own size again. So
/// after a few requests without success the rule gives up, until the window has its size once more.
class WindowSizeRule {
public:
    /// `DisplayWarningMode` of `state` is 2 once the rule is armed; the first resize does that.
    WindowSizeRule(shell::SharedState& state, const platform::Screen& screen)
        : state_(state), screen_(screen) {}

    /// What the window looks like after a resize.
    struct Window {
        bool isNormal;     ///< neither minimised nor maximised
        bool hasFixedSize; ///< 800 by 600 pixels
    };

    /// What is to be done to it.
    struct Orders {
        bool makeNormal = false; ///< back from minimised or maximised
        bool centre = false;     ///< to the middle of the screen
        bool setSize = false;    ///< to 800 by 600 pixels

        bool operator==(const Orders&) const = default;
    };

    /// Called at every resize once start-up has sized and placed the window itself.
    Orders resized(Window window);

    /// Called when the window had time to take the size asked for.
    void settled(Window window);

    bool hasGivenUp() const { return requests_ >= kMostRequests; }

private:
    /// Windows under a manager that does its work need one; the others are for events that cross.
    static constexpr int kMostRequests = 4;

    shell::SharedState& state_;
    const platform::Screen& screen_;
    int requests_ = 0;
};

} // namespace viewer
