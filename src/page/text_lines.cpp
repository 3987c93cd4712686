#include "page/text_lines.h"

#include "page/link_view.h"

#include <algorithm>

namespace page {

namespace {

/// Gap, in twips, from which two runs of a line count as separate words.
constexpr double kWordGap = 30;

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

bool isShadow(const TextOperation& before, const TextOperation& text) {
    return before.text == text.text && before.y != text.y && before.y - text.y == before.x - text.x;
}

bool isApart(const TextOperation& run, double end) {
    return run.x > end + kWordGap;
}

/// Gathers the runs that stand on a surface, in drawing order. Answer fields have no text that is
/// read in the page.
class TextLines::Gathering
    : PassOver<LineOperation, FillOperation, PictureOperation, MenuOperation, FieldOperation,
               VideoOperation, SwitchOperation, CaptionOperation, FailedOperation> {
public:
    /// Captions are kept in `captions`.
    Gathering(const Recording& recording, SurfaceId surface, const CaptionLayout& layOut,
              std::deque<TextOperation>& captions)
        : surface_(surface), layOut_(layOut), captions_(captions), links_(standingLinks(recording)),
          nextLink_(links_.begin()) {
        for (const Operation& operation : recording.operations())
            std::visit(*this, operation);
    }

    const Runs& runs() const { return runs_; }

    using PassOver::operator();
    void operator()(const ClearOperation& clear) {
        if (clear.surface != surface_)
            return;
        runs_.clear();
        for (const TextOperation& caption : captions_)
            runs_.push_back(&caption);
    }
    void operator()(const TextOperation& text) {
        if (text.surface != surface_)
            return;
        if (!runs_.empty() && isShadow(*runs_.back(), text))
            runs_.pop_back();
        runs_.push_back(&text);
    }
    void operator()(const LinkOperation& link) {
        if (nextLink_ == links_.end() || *nextLink_ != &link)
            return;
        ++nextLink_;
        if (link.surface != surface_ || link.control != LinkControl::Labelien)
            return;
        for (const TextOperation& line : layOut_(link))
            runs_.push_back(&captions_.emplace_back(line));
    }

private:
    SurfaceId surface_;
    const CaptionLayout& layOut_;
    std::deque<TextOperation>& captions_;
    std::vector<const LinkOperation*> links_;
    std::vector<const LinkOperation*>::const_iterator nextLink_;
    Runs runs_;
};

TextLines::TextLines(const Recording& recording, SurfaceId surface, const CaptionLayout& layOut)
    : lines_(arrangedInLines(Gathering(recording, surface, layOut, captions_).runs())) {}

std::vector<TextLine> arrangedInLines(const std::vector<const TextOperation*>& runs) {
    std::vector<TextLine> lines;
    for (const TextOperation* run : runs) {
        const auto open =
            lines.rbegin() + static_cast<std::ptrdiff_t>(std::min(lines.size(), kOpenLines));
        const auto found = std::find_if(lines.rbegin(), open,
                                        [&](const TextLine& line) { return takes(line, *run); });
        add(found != open ? *found : lines.emplace_back(), *run);
    }
    std::stable_sort(lines.begin(), lines.end(),
                     [](const TextLine& a, const TextLine& b) { return a.top < b.top; });
    for (TextLine& line : lines)
        std::stable_sort(line.runs.begin(), line.runs.end(),
                         [](const auto* a, const auto* b) { return a->x < b->x; });
    return lines;
}

} // namespace page
