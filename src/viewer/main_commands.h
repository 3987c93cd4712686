#pragma once

#include "platform/message_box.h"
#include "shell/shared_state.h"
#include "viewer/action_dispatcher.h"
#include "viewer/collaborators.h"
#include "viewer/history.h"
#include "viewer/page_view.h"

#include <QString>

#include <cstdint>
#include <map>
#include <optional>

namespace viewer {

/// What the main window's buttons do. Each function is called only while its button is enabled.
class MainCommands {
public:
    MainCommands(shell::SharedState& state, ActionDispatcher& actions, PageView& view,
                 const Collaborators& collaborators, platform::MessageBoxes& messageBoxes);

    /// Runs a page code.
    void runCode(const QString& code);

    /// Runs the tag of a link or of a menu entry. When that opens the test and a page is to follow
    /// it, that page is shown; the link goes on leading to the test.
    void followLink(const QString& tag);

    void back();
    void forward();
    void nextInChapter();
    void previousInChapter();

    void search();
    void returnToTest();
    void calculator() { collaborators_.calculator.open(); }
    void print() { collaborators_.printing.print(); }
    void help() { collaborators_.help.open(); }
    void update();

    /// Asks whether to leave; false when the person stays. Otherwise closes the video and shows
    /// the exit screen.
    bool leave();

private:
    void keepPlace();
    void showVisited(std::optional<std::int16_t> page);
    void showNeighbour(int distance);

    shell::SharedState& state_;
    ActionDispatcher& actions_;
    PageView& view_;
    Collaborators collaborators_;
    platform::MessageBoxes& messageBoxes_;
    History history_;
    std::map<std::int16_t, int> places_; ///< how far pages were scrolled when they were left, twips
};

} // namespace viewer
