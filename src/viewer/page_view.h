#pragma once

#include "viewer/found_words.h"

#include <QString>

namespace viewer {

/// The main window as the page loader and the action dispatcher know it.
class PageView {
public:
    virtual ~PageView() = default;

    /// Hides, or shows, the page area and the illustration area.
    virtual void setPageVisible(bool visible) = 0;

    /// Hides every link control and empties its tag and tooltip.
    virtual void resetLinks() = 0;

    /// Hides the scroll bar and the frame of the video buttons.
    virtual void hideScrollBarAndVideoFrame() = 0;

    /// Empties the drawn page, and with it the page area, the illustration area and the title band.
    virtual void clearPictures() = 0;

    virtual void setCaption(const QString& caption) = 0;

    /// Tells the page's whole title, of which the drawn title band shows what fits.
    virtual void setTitle(const QString& title) = 0;

    /// Shows the frame of the video buttons: the drawn page has a video.
    virtual void showVideoFrame() = 0;

    virtual void setBackEnabled(bool enabled) = 0;
    virtual void setForwardEnabled(bool enabled) = 0;

    /// Shows the drawn page from its top and sets the scroll bar up for its height.
    virtual void fitPage() = 0;

    /// How far the page is scrolled down, in twips; setting it keeps within the page.
    virtual int scrolled() const = 0;
    virtual void scrollTo(int twips) = 0;

    /// Shows or hides the buttons to the neighbours in the chapter.
    virtual void setChapterButtons(bool previous, bool next) = 0;

    virtual void setPrintable(bool printable) = 0;

    /// Code and caption ("Accueil" or "Sommaire") of the summary button.
    virtual void setSummary(const QString& code, const QString& caption) = 0;

    /// Shows or hides the button that leads back to the test.
    virtual void setReturnToTestVisible(bool visible) = 0;

    /// Says in a line that the page that was wanted cannot be read, or not all of it; what is shown
    /// is the one before, or what could be read.
    virtual void tellUnreadablePage() = 0;

    /// Marks these words on the page that is shown, until another comes, and scrolls to the first.
    virtual void markWords(const FoundWords& words) = 0;

    /// Gives the window the pointer of a program at work, or its normal one.
    virtual void showHourglass() = 0;
    virtual void restorePointer() = 0;
};

} // namespace viewer
