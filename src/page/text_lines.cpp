#include "page/text_lines.h"

#include "page/link_view.h"

#include <algorithm>

namespace page {

namespace {

/// Gap, in twips, from which two runs of a line count as separate words.
constexpr double kWordGap = 30;

/// A shadow is the same text, drawn just before, as far to the side as below or above.
bool isShadow(const TextOperation& before, const TextOperation& text) {
    return before.text == text.text && before.y != text.y && before.y - text.y == before.x - text.x;
}

double foot(const TextOperation& run) {
    return run.y + fontPixels(run.font.points) * 15.0;
}

bool takes(const TextLine& line, const TextOperation& run) {
    const double slack = std::max(line.bottom - line.top, foot(run) - run.y) / 4;
    const double middle = (run.y + foot(run)) / 2;
    return middle >= line.top - slack && middle <= line.bottom + slack;
}

void add(TextLine& line, const TextOperation& run) {
    if (line.runs.empty() || foot(run) - run.y > line.bottom - line.top) {
        line.top = run.y;
        line.bottom = foot(run);
    }
    line.runs.push_back(&run);
}

/// How many of the last lines a run may still belong to: the cells of a table are drawn one after
/// the other, each with lines of its own.
constexpr std::size_t kOpenLines = 64;

} // namespace

bool isApart(const TextOperation& run, double end) {
    return run.x > end + kWordGap;
}

TextLines::TextLines(const Recording& recording, SurfaceId surface, const CaptionLayout& layOut) {
    arrange(standingRuns(recording, surface, layOut));
}

void TextLines::addCaption(const std::vector<TextOperation>& caption, Runs& runs) {
    for (const TextOperation& line : caption)
        runs.push_back(&captions_.emplace_back(line));
}

void TextLines::wipe(Runs& runs) const {
    runs.clear();
    for (const TextOperation& caption : captions_)
        runs.push_back(&caption);
}

/// The runs in drawing order.
TextLines::Runs TextLines::standingRuns(const Recording& recording, SurfaceId surface,
                                        const CaptionLayout& layOut) {
    const auto links = standingLinks(recording);
    auto nextLink = links.begin();
    Runs runs;
    for (const Operation& operation : recording.operations()) {
        if (const auto* clear = std::get_if<ClearOperation>(&operation)) {
            if (clear->surface == surface)
                wipe(runs);
        } else if (const auto* text = std::get_if<TextOperation>(&operation)) {
            if (text->surface != surface)
                continue;
            if (!runs.empty() && isShadow(*runs.back(), *text))
                runs.pop_back();
            runs.push_back(text);
        } else if (const auto* link = std::get_if<LinkOperation>(&operation)) {
            if (nextLink == links.end() || *nextLink != link)
                continue;
            ++nextLink;
            if (link->surface == surface && link->control == LinkControl::Labelien)
                addCaption(layOut(*link), runs);
        }
    }
    return runs;
}

void TextLines::arrange(const Runs& runs) {
    for (const TextOperation* run : runs) {
        const auto open =
            lines_.rbegin() + static_cast<std::ptrdiff_t>(std::min(lines_.size(), kOpenLines));
        const auto found = std::find_if(lines_.rbegin(), open,
                                        [&](const TextLine& line) { return takes(line, *run); });
        add(found != open ? *found : lines_.emplace_back(), *run);
    }
    std::stable_sort(lines_.begin(), lines_.end(),
                     [](const TextLine& a, const TextLine& b) { return a.top < b.top; });
    for (TextLine& line : lines_)
        std::stable_sort(line.runs.begin(), line.runs.end(),
                         [](const auto* a, const auto* b) { return a->x < b->x; });
}

} // namespace page
