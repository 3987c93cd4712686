#pragma once

#include "markup/drawing_state.h"
#include "markup/drawn_page.h"
#include "markup/picture_source.h"
#include "page/recording.h"
#include "page/text_metrics.h"

#include <QString>

#include <cstdint>

namespace markup {

/// Height of the question area before its drawing ends and gives it another.
inline constexpr int kQuestionAreaTwips = 4575;

/// What a text is drawn as, which decides on what: the main window's surfaces, the question area of
/// the test's window, or paper.
enum class DrawnAs {
    CoursePage, ///< places links; may have a caption and a video
    Question,   ///< places answer controls; links are part of the text
    Paper,      ///< of a course page the text column alone, links as part of the text
};

/// What is to be drawn.
struct PageText {
    QString source;
    DrawnAs as = DrawnAs::CoursePage;
    QString title = {}; ///< stands in the title band of a course page, on one line
    /// Where the pen starts: 0 at the top, otherwise below a drawing that was this tall, in twips.
    std::int32_t hauteurPage = 0;
};

/// Who waits for a page while it is drawn.
class DrawingWatcher {
public:
    virtual ~DrawingWatcher() = default;

    /// The hourglass while busy, the normal pointer afterwards. A drawing for paper leaves it busy:
    /// whoever prints knows when that is over.
    virtual void setBusy(bool busy) = 0;

    /// What was drawn so far on the surface is to be seen now.
    virtual void refresh(page::SurfaceId surface) = 0;
};

/// What a drawing works with; all of it outlives the drawing.
struct DrawingTools {
    DrawingState& state; ///< what earlier pages left in it counts
    PictureSource& pictures;
    const page::TextMetrics& metrics;
    DrawingWatcher* watcher = nullptr; ///< null when nobody waits
};

/// Draws a text into `page`, whatever that held before. It can be looked at meanwhile: the
/// recording and the links grow with the drawing, the rest stands at its end. Nothing in a text
/// stops it: what fails is recorded and left out.
void drawPage(const PageText& text, const DrawingTools& tools, DrawnPage& page);

/// The same for who looks at it when it is done.
DrawnPage drawPage(const PageText& text, const DrawingTools& tools);

} // namespace markup
