#include "authoring/check/drawn_source.h"

#include "authoring/check/line_marks.h"
#include "look/surface_widths.h"
#include "page/link_view.h"
#include "page/twips.h"

namespace authoring::check {

namespace {

/// Whether a text is the shadow below the one that is printed next, a little left of and above it.
bool isShadowOf(const page::TextOperation& text, const page::Operation* next) {
    const auto* printed = next ? std::get_if<page::TextOperation>(next) : nullptr;
    return printed && printed->text == text.text && printed->x < text.x &&
           text.x - printed->x == text.y - printed->y;
}

} // namespace

DrawnSource::DrawnSource(const Source& source, const Source* comment,
                         const page::TextMetrics& metrics, markup::PictureShelf& pictures)
    : source_(source), comment_(comment), metrics_(metrics) {
    if (source.kind() == Source::Kind::Page) {
        page_ = std::make_unique<coursetool::OffscreenPage>(metrics, pictures);
        page_->draw(withLineMarks(source.text()));
        columnHeight_ = page_->columnHeight();
        assignLines(page_->recording());
    } else {
        question_ = std::make_unique<coursetool::OffscreenQuestion>(metrics, pictures);
        question_->draw(withLineMarks(comment ? source.text() + comment->text() : source.text()));
        assignLines(question_->recording());
    }
    collectWords();
}

double DrawnSource::width(page::SurfaceId surface) const {
    using enum page::SurfaceId;
    const int pixels = surface == PictureIllus ? look::kIllustrationWidthPx
                       : surface == Titre      ? look::kTitleWidthPx
                                               : look::kPageWidthPx;
    return pixels * page::kTwipsPerPixel;
}

void DrawnSource::assignLines(const page::Recording& recording) {
    const auto own = static_cast<int>(source_.lines().size());
    int line = 1;
    for (const page::Operation& operation : recording.operations()) {
        if (isLineMark(operation))
            ++line;
        else if (line <= own || !comment_)
            operations_.push_back({&operation, &source_, line});
        else
            operations_.push_back({&operation, comment_, line - own});
    }
}

void DrawnSource::collectWords() {
    for (std::size_t i = 0; i < operations_.size(); ++i) {
        const page::Operation& operation = *operations_[i].operation;
        const page::Operation* next =
            i + 1 < operations_.size() ? operations_[i + 1].operation : nullptr;
        if (const auto* text = std::get_if<page::TextOperation>(&operation)) {
            if (!isShadowOf(*text, next))
                takeWords(operations_[i], *text);
        } else if (const auto* link = std::get_if<page::LinkOperation>(&operation)) {
            for (const page::TextOperation& line : page::captionLines(*link, metrics_))
                takeWords(operations_[i], line);
        }
    }
}

void DrawnSource::takeWords(const DrawnOperation& operation, const page::TextOperation& text) {
    qsizetype end = text.text.size();
    while (end > 0 && text.text[end - 1].isSpace())
        --end;
    if (end == 0)
        return;
    words_.push_back({operation.source, operation.line, text});
    if (end == text.text.size())
        return;
    page::TextOperation& taken = words_.back().text;
    taken.text.truncate(end);
    taken.width = metrics_.width(taken.font, taken.text);
}

} // namespace authoring::check
