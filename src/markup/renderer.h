#pragma once

#include "markup/drawing_state.h"
#include "markup/picture_shelf.h"
#include "markup/windows.h"
#include "page/recording.h"
#include "page/twips.h"

#include <QStringView>

#include <optional>

namespace markup {

/// Draws the source of a page, line by line, onto the surface of the drawing state. A statement
/// that fails is recorded, abandoned, and the next one runs: bad content never stops a page.
class Renderer {
public:
    /// `screenTwipsPerPixel` is the vertical one. All references must outlive the renderer.
    Renderer(DrawingState& state, PageWindow& window, PictureShelf& pictures,
             page::Recording& recording, double screenTwipsPerPixel = page::kTwipsPerPixel);

    /// Draws the whole source of `fenetreSource`. Callers set `surfaceDessin`, `fenetreSource` and
    /// `enImpression` first, load the source, and set `hauteurPage` to 0 unless the drawing is to
    /// continue below the previous one. Leaves the height drawn in `hauteurPage` and on the
    /// surface.
    void affichepage();

    /// Resets the drawing state and puts the pen at the top left corner (below what stands already,
    /// when `hauteurPage` is not 0).
    void initecran();

    /// Runs one directive line, given with its leading "##".
    void tradcode(QStringView ligne);

    // For the directives.

    DrawingState& state() { return state_; }
    PageWindow& window() { return window_; }
    PictureShelf& pictures() { return pictures_; }
    page::Recording& recording() { return recording_; }
    page::Surface& surface() { return *state_.surfaceDessin; }
    double twipsPerPixel() const { return twipsPerPixel_; }

    /// Whether the page at hand is a course page on screen: the only kind that places links and
    /// has a title bar and a video.
    bool onCoursePage() const;

    /// Where "OBJ" directives lead while printing: back to the paper, or nowhere.
    void drawOnPaper();
    void drawNowhere();

    /// Width of the text column when nothing narrows it.
    double fullWidth() const;

    /// Records that the statement at hand was abandoned, unless `done`. `reason` is a French
    /// sentence without full stop.
    bool check(bool done, const char16_t* reason);

    /// Stores a value rounded to 16 bits, or abandons the statement when it does not fit.
    bool store(std::int16_t& target, double value);

    /// Moves the pen down by `twips`, or abandons the statement when it would leave all bounds.
    void movePenYBy(double twips);

private:
    void drawLine(QStringView ligne);
    void printTextLine(const QString& texte, bool finParagraphe);
    void align(const QString& texte);
    void printShadow(const QString& texte);
    void finish();

    DrawingState& state_;
    PageWindow& window_;
    PictureShelf& pictures_;
    page::Recording& recording_;
    double twipsPerPixel_;
    page::Surface* paper_ = nullptr;
    page::Recording discarded_;
    std::optional<page::Surface> nowhere_;
    int lineNumber_ = 0;
    QStringView directive_;
};

} // namespace markup
