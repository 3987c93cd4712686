#pragma once

#include "viewer/found_words.h"
#include "viewer/reading_aloud.h"

#include <QString>

#include <functional>

namespace viewer {

// What stands beside the main window, each as narrow as its callers need it.

/// The device that plays the page's video.
class VideoDevice {
public:
    virtual ~VideoDevice() = default;
    /// Closes whatever is open and hides the picture; without effect when nothing is.
    virtual void close() = 0;
    /// Carries out the video button `index`: 0 play, 1 one frame forward, 2 pause, 3 stop,
    /// 4 one frame back, 5 to the end, 6 to the start.
    virtual void press(int index) = 0;
    /// Goes to a place of the video, 0 at its first frame to 1 at its last; what plays goes on from
    /// there.
    virtual void seek(double share) = 0;
    /// Shows the frame anew that stands, for a picture of another size.
    virtual void refresh() = 0;
};

/// A window shown modally: open() returns once it is closed.
class ModalWindow {
public:
    virtual ~ModalWindow() = default;
    virtual void open() = 0;
};

/// The search window. It starts afresh each time it opens, with no page chosen yet.
class SearchWindow : public ModalWindow {
public:
    /// The words that led to the page that was chosen last.
    virtual FoundWords foundWords() const = 0;
};

/// Prints pages.
class PagePrinting {
public:
    virtual ~PagePrinting() = default;
    /// Prints what the page belongs to, after the print dialog.
    virtual void print() = 0;
};

/// Where it is told what was printed.
class PrintNotices {
public:
    virtual ~PrintNotices() = default;
    /// `line` is a French sentence; `show`, where it is not empty, has the file shown that was
    /// written.
    virtual void tellPrinted(const QString& line, const std::function<void()>& show) = 0;
};

/// The links that the page has placed on the main window.
class PageLinks {
public:
    /// An index that belongs to no link.
    static constexpr int kNone = -1;

    virtual ~PageLinks() = default;
    /// Hides every link and empties its tag and tooltip.
    virtual void reset() = 0;
    /// Shows the links that the page has placed up to now, each on its surface.
    virtual void show() = 0;
    /// Shows all text links plain, except the one with index `kept`.
    virtual void resetHighlight(int kept) = 0;
};

/// Whether the software may be updated now.
class UpdateCheck {
public:
    virtual ~UpdateCheck() = default;
    /// False while a module runs; the person has then been told.
    virtual bool confirmUpdateIsPossible() = 0;
};

/// The windows and devices that the main window's buttons and page codes lead to. The exercise
/// window leaves `ExerciseReturnPage` in the shared state, the search window `SearchChosenPage`, 0
/// from its opening on until a page is chosen. The exit screen does not return to the program: when
/// it closes, all ends.
struct Collaborators {
    VideoDevice& video;
    PageLinks& links;
    PagePrinting& printing;
    UpdateCheck& updateCheck;
    ModalWindow& exercise;
    ModalWindow& orderForm;
    SearchWindow& search;
    ModalWindow& calculator; ///< not modal: open() returns at once
    ModalWindow& help;       ///< not modal: open() returns at once
    ModalWindow& installation;
    ModalWindow& exitScreen;
    ReadingAloud& reading;
};

} // namespace viewer
