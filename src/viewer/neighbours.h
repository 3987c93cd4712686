#pragma once

namespace viewer {

// What stands beside the main window, each as narrow as its callers need it.

/// The device that plays the page's video.
class VideoDevice {
public:
    virtual ~VideoDevice() = default;
    /// Closes whatever is open and hides the picture; without effect when nothing is.
    virtual void close() = 0;
};

/// A window shown modally: open() returns once it is closed.
class ModalWindow {
public:
    virtual ~ModalWindow() = default;
    virtual void open() = 0;
};

/// The windows that the main window's buttons and page codes open. The exercise window leaves
/// `ExerciseReturnPage` in the shared state, the search window, which starts afresh each time,
/// `SearchChosenPage`. The exit screen does not return to the program: when it closes, all ends.
struct Neighbours {
    VideoDevice& video;
    ModalWindow& exercise;
    ModalWindow& orderForm;
    ModalWindow& search;
    ModalWindow& calculator; ///< not modal: open() returns at once
    ModalWindow& printing;
    ModalWindow& help; ///< not modal: open() returns at once
    ModalWindow& installation;
    ModalWindow& exitScreen;
};

} // namespace viewer
