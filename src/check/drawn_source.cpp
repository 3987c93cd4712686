#include "check/drawn_source.h"

#include "markup/draw_page.h"
#include "page/link_view.h"
#include "page/surface_widths.h"
#include "page/twips.h"
#include "viewer/page_sheet.h"

namespace check {

namespace {

/// Whether a text is the shadow below the one that is printed next, a little left of and above it.
bool isShadowOf(const page::TextOperation& text, const page::Operation* next) {
    const auto* printed = next ? std::get_if<page::TextOperation>(next) : nullptr;
    return printed && printed->text == text.text && printed->x < text.x &&
           text.x - printed->x == text.y - printed->y;
}

} // namespace

DrawnSource::DrawnSource(const Source& source, const Source* comment,
                         const page::TextMetrics& metrics, markup::PictureSource& pictures)
    : source_(source), comment_(comment), metrics_(metrics) {
    using markup::DrawnAs;
    markup::DrawingState state;
    const bool isPage = source.kind() == Source::Kind::Page;
    markup::drawPage({comment ? source.text() + comment->text() : source.text(),
                      isPage ? DrawnAs::CoursePage : DrawnAs::Question},
                     {state, pictures, metrics}, drawn_);
    if (isPage)
        columnHeight_ = viewer::columnHeight(drawn_, metrics);
    assignLines();
    collectWords();
}

double DrawnSource::width(page::SurfaceId surface) const {
    using enum page::SurfaceId;
    const int pixels = surface == PictureIllus ? page::kIllustrationWidthPx
                       : surface == Titre      ? page::kTitleWidthPx
                                               : page::kPageWidthPx;
    return pixels * page::kTwipsPerPixel;
}

void DrawnSource::assignLines() {
    const auto own = static_cast<int>(source_.lines().size());
    const auto& operations = drawn_.recording.operations();
    for (std::size_t i = 0; i < operations.size(); ++i) {
        const int line = drawn_.lineOf(i);
        if (line <= own || !comment_)
            operations_.push_back({&operations[i], &source_, line});
        else
            operations_.push_back({&operations[i], comment_, line - own});
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

} // namespace check
