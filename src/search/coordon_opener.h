#pragma once

#include "search/coordon.h"
#include "shell/shared_state.h"
#include "viewer/collaborators.h"

#include <QWidget>

namespace search {

/// Opens the search window over the main window, each time a new one, and keeps what was
/// searched last and the words that led
/// to the page chosen last.
class CoordonOpener : public viewer::SearchWindow {
public:
    /// All must outlive the opener.
    CoordonOpener(shell::SharedState& state, const page::FontBook& fonts, QWidget& mainWindow)
        : state_(state), fonts_(fonts), mainWindow_(mainWindow) {}

    void open() override;
    viewer::FoundWords foundWords() const override { return words_; }

private:
    shell::SharedState& state_;
    const page::FontBook& fonts_;
    QWidget& mainWindow_;
    LastSearch last_;
    viewer::FoundWords words_;
};

} // namespace search
