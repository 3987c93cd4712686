#pragma once

#include "markup/draw_page.h"
#include "page/recording.h"
#include "page/surface.h"

#include <QStringView>

#include <array>
#include <cstddef>

namespace markup {

/// Draws the source of a page, line by line, onto its surfaces. A statement that fails is recorded,
/// abandoned, and the next one runs: bad content never stops a page. Used by drawPage() alone, for
/// one text; the directives see the drawing through it.
class Renderer {
public:
    /// All references must outlive the renderer.
    Renderer(const PageText& text, const DrawingTools& tools, DrawnPage& page);

    /// Draws the whole source, from `hauteurPage` of the page on, and leaves the height drawn there
    /// and on the surface.
    void affichepage();

    /// Leaves in the page what is known at the end: the heights of the surfaces, and the pen.
    void tellEnd() const;

    // For the directives.

    /// Resets the drawing state and puts the pen at the top left corner (below what stands already,
    /// when `hauteurPage` is not 0).
    void initecran();

    DrawingState& state() { return tools_.state; }
    DrawnPage& page() { return page_; }
    PictureSource& pictures() { return tools_.pictures; }
    page::Recording& recording() { return page_.recording; }

    /// `surfaceDessin`: where drawing goes now.
    page::Surface& surface() { return *surfaceDessin_; }
    page::Surface& surface(page::SurfaceId id) { return surfaces_[static_cast<std::size_t>(id)]; }
    void drawOn(page::Surface& surface) { surfaceDessin_ = &surface; }
    /// Where "OBJ" directives lead while printing when it is not back to the paper.
    page::Surface& nowhere() { return nowhere_; }

    bool enImpression() const { return text_.as == DrawnAs::Paper; }
    /// Whether the page at hand is a course page on screen: the only kind that places links and
    /// has a title bar and a video.
    bool onCoursePage() const { return text_.as == DrawnAs::CoursePage; }
    /// The answer controls that the page can place; null when it is no question.
    AnswerFields* answerFields() { return text_.as == DrawnAs::Question ? &page_.fields : nullptr; }

    /// Shows what was drawn so far, to who waits for it.
    void refresh();

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
    void tradcode(QStringView ligne);
    void printTextLine(const QString& texte, bool finParagraphe);
    void align(const QString& texte);
    void printShadow(const QString& texte);
    void finish();
    void setBusy(bool busy);

    const PageText& text_;
    DrawingTools tools_;
    DrawnPage& page_;
    std::array<page::Surface, page::kSurfaces> surfaces_; ///< in the order of SurfaceId
    page::Recording discarded_;
    page::Surface nowhere_;
    page::Surface& area_; ///< where the text begins
    page::Surface* surfaceDessin_;
    int lineNumber_ = 0;
    QStringView directive_;
};

} // namespace markup
