#pragma once

#include "shell/shared_state.h"
#include "viewer/collaborators.h"

#include <QWidget>

namespace search {

/// Opens the search window over the main window, each time a new one, and keeps the words that led
/// to the page chosen last.
class CoordonOpener : public viewer::SearchWindow {
public:
    CoordonOpener(shell::SharedState& state, QWidget& mainWindow)
        : state_(state), mainWindow_(mainWindow) {}

    void open() override;
    viewer::FoundWords foundWords() const override { return words_; }

private:
    shell::SharedState& state_;
    QWidget& mainWindow_;
    viewer::FoundWords words_;
};

} // namespace search
