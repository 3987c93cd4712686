#pragma once

#include "exercises/exo.h"
#include "viewer/collaborators.h"

namespace viewer {
class Multim;
}

namespace exercises {

/// Opens the test's window over the main window. The test itself stays here between two openings.
class ExoOpener : public viewer::ModalWindow, private CourseWindow {
public:
    /// What the window works with beside the main window; all must outlive the opener.
    struct Parts {
        shell::SharedState& shared;
        markup::DrawingState& drawing;
        markup::PictureSource& pictures;
        const page::FontBook& fonts;
        const platform::Screen& screen;
        platform::MessageBoxes& messageBoxes;
        CalculatorBeside& calculator;
        viewer::ReadingAloud& voice;
        bool author = false; ///< shows the authoring switch
    };

    ExoOpener(viewer::Multim& window, const Parts& parts) : window_(window), parts_(parts) {}

    /// Shows the window; returns when it is closed. Does nothing while it is open.
    void open() override;

    bool isOpen() const { return exo_ != nullptr; }
    /// Shows what has changed in the tables, while the window is open (Exo::reload()).
    bool reload() { return !exo_ || exo_->reload(); }

private:
    void hideReturnToTest() override;

    viewer::Multim& window_;
    Parts parts_;
    TestState test_;
    Exo* exo_ = nullptr; ///< while it is open
};

} // namespace exercises
