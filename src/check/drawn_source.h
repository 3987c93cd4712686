#pragma once

#include "check/source.h"
#include "markup/drawn_page.h"
#include "markup/picture_source.h"
#include "page/recording.h"
#include "page/text_metrics.h"

#include <vector>

namespace check {

/// A drawing operation and the line of the source that made it.
struct DrawnOperation {
    const page::Operation* operation;
    const Source* source;
    int line; ///< of `source`
};

/// Something with words on a surface: a run of text, or a line of a link's caption. Blanks at its
/// end, which nobody sees, are not part of it; nor is there a shadow below a text.
struct DrawnWords {
    const Source* source;
    int line; ///< of `source`
    page::TextOperation text;

    double left() const { return text.x; }
    double right() const { return text.x + text.width; }
};

/// What the house's renderer draws of a page, or of a question with the comment that follows it
/// once the answer was wrong.
class DrawnSource {
public:
    /// `comment` is empty or null for a page. Both sources must outlive this.
    DrawnSource(const Source& source, const Source* comment, const page::TextMetrics& metrics,
                markup::PictureSource& pictures);

    const std::vector<DrawnOperation>& operations() const { return operations_; }
    const std::vector<DrawnWords>& words() const { return words_; }
    const page::TextMetrics& metrics() const { return metrics_; }
    /// Width of a surface in twips.
    double width(page::SurfaceId surface) const;
    /// Height of the text column as the window scrolls it, in twips; 0 for a question, which is as
    /// tall as what it shows.
    double columnHeight() const { return columnHeight_; }

private:
    void assignLines();
    void collectWords();
    void takeWords(const DrawnOperation& operation, const page::TextOperation& text);

    const Source& source_;
    const Source* comment_;
    const page::TextMetrics& metrics_;
    markup::DrawnPage drawn_;
    std::vector<DrawnOperation> operations_;
    std::vector<DrawnWords> words_;
    double columnHeight_ = 0;
};

} // namespace check
