#include "viewer/main_commands.h"

#include "viewer/page_code.h"

#include <utility>

namespace viewer {

MainCommands::MainCommands(shell::SharedState& state, ActionDispatcher& actions, PageView& view,
                           const Collaborators& collaborators, platform::MessageBoxes& messageBoxes)
    : state_(state), actions_(actions), view_(view), collaborators_(collaborators),
      messageBoxes_(messageBoxes), history_(state) {}

void MainCommands::runCode(const QString& code) {
    keepPlace();
    actions_.run(code);
}

void MainCommands::keepPlace() {
    places_[state_.HistoryPages.valueOr(state_.HistoryPos, 0)] = view_.scrolled();
}

void MainCommands::followLink(const QString& tag) {
    keepPlace();
    QString code = tag;
    actions_.runAction(code);
    if (code != tag)
        actions_.runAction(code);
}

void MainCommands::back() {
    keepPlace();
    const History::Pause unrecorded(state_);
    showVisited(history_.stepBack());
    view_.setForwardEnabled(true);
}

void MainCommands::forward() {
    keepPlace();
    const History::Pause unrecorded(state_);
    showVisited(history_.stepForward());
    view_.setBackEnabled(true);
    if (history_.nextSlotIsEmpty())
        view_.setForwardEnabled(false);
}

/// A step out of the table shows nothing, but has been made: going back from there leads to the
/// page of slot 100 first. An empty slot shows page 0. Both are meant so.
void MainCommands::showVisited(std::optional<std::int16_t> page) {
    if (!page)
        return;
    actions_.run(pageCode(*page));
    // Where it was left is what who comes back looks for.
    if (const auto place = places_.find(*page); place != places_.end())
        view_.scrollTo(place->second);
}

void MainCommands::nextInChapter() {
    showNeighbour(1);
}

void MainCommands::previousInChapter() {
    showNeighbour(-1);
}

void MainCommands::showNeighbour(int distance) {
    const auto index = std::int64_t{state_.CurrentOrderIndex} + distance;
    if (!std::in_range<std::int32_t>(index))
        return;
    keepPlace();
    actions_.showPageByOrder(static_cast<std::int32_t>(index));
    view_.restorePointer();
}

void MainCommands::search() {
    collaborators_.search.open();
    if (state_.SearchChosenPage == 0)
        return;
    runCode(pageCode(state_.SearchChosenPage));
    view_.markWords(collaborators_.search.foundWords());
}

void MainCommands::returnToTest() {
    collaborators_.exercise.open();
    const bool returns = state_.ExerciseReturnPage != 0;
    view_.setReturnToTestVisible(returns);
    if (returns)
        runCode(pageCode(state_.ExerciseReturnPage));
}

void MainCommands::update() {
    if (collaborators_.updateCheck.confirmUpdateIsPossible())
        collaborators_.installation.open();
}

bool MainCommands::leave() {
    const platform::Message question{
        QStringLiteral("Quitter"), QStringLiteral("Attention: sortie du logiciel."),
        platform::Message::Icon::Question, platform::Message::Buttons::OkCancel};
    if (messageBoxes_.ask(question) != platform::Answer::Ok)
        return false;
    collaborators_.video.close();
    collaborators_.exitScreen.open();
    return true;
}

} // namespace viewer
