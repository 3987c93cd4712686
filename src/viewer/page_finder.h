#pragma once

#include "page/recording.h"
#include "page/text_metrics.h"
#include "viewer/page_find.h"

#include <array>

namespace look {
class PagePanel;
class PictureBox;
} // namespace look

namespace viewer {

class FindBar;

/// The search in the page shown, with its marks on the areas of the window and its bar at the foot
/// of the page. What is searched is what the page wrote: its text, then its illustration, then the
/// title above, which both show whatever the page is scrolled to.
class PageFinder {
public:
    struct Parts {
        FindBar& bar;
        look::PagePanel& panel;
        std::array<look::PictureBox*, 3> boxes; ///< in the order they are searched; the page first
        const page::Recording& recording;
        const page::TextMetrics& metrics;
    };
    /// All must outlive it.
    explicit PageFinder(const Parts& parts);

    /// Opens the bar, on what is marked or what was typed last, and gives it the keyboard.
    void open();
    /// Closes the bar, which gives the keyboard back to the page, and takes the marks away.
    void close();

    /// Lead to another occurrence; they open the bar when nothing is sought.
    void next();
    void previous();

    /// Marks words, and shows the first from the top of the page.
    void mark(const FoundWords& words);

    /// The page goes, and the marks with it.
    void pageGoes();
    /// Another page stands: while the bar is open, it is searched anew.
    void pageStands();

    bool isOpen() const;

private:
    void typed();
    void search(const FoundWords& words, const PageFind::Place& from);
    bool isCurrentInView() const;
    PageFind::Place placeInView() const;
    void step(void (PageFind::*walk)());
    void showMarks();
    void showCurrent();

    Parts parts_;
    PageFind find_;
};

} // namespace viewer
