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
        bool author = false; ///< shows the authoring switch
    };

    ExoOpener(viewer::Multim& window, const Parts& parts) : window_(window), parts_(parts) {}

    /// Shows the window; returns when it is closed. Does nothing while it is open.
    void open() override;

private:
    void hideReturnToTest() override;

    viewer::Multim& window_;
    Parts parts_;
    TestState test_;
    bool isOpen_ = false;
};

} // namespace exercises
