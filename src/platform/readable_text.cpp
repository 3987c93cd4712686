#include "platform/readable_text.h"

#include "platform/link_view.h"
#include "platform/sign_faces.h"

#include <QStringList>

#include <algorithm>
#include <deque>
#include <vector>

namespace platform {

namespace {

/// Gap, in twips, from which two runs of a line count as separate words.
constexpr double kWordGap = 30;

using Runs = std::vector<const TextOperation*>;

/// A shadow is the same text, drawn just before, as far to the side as below or above.
bool isShadow(const TextOperation& before, const TextOperation& text) {
    return before.text == text.text && before.y != text.y && before.y - text.y == before.x - text.x;
}

/// The lines of a label on the surface. All are taken to be as wide as the label.
void addCaption(const LinkOperation& link, std::deque<TextOperation>& captions, Runs& runs) {
    const QStringList lines = link.caption.split(QStringLiteral("\r\n"));
    const double height = link.height / static_cast<double>(lines.size());
    double y = link.y;
    for (const QString& line : lines) {
        captions.push_back({link.surface, link.x, y, line, link.font, link.ink, link.width});
        runs.push_back(&captions.back());
        y += height;
    }
}

/// What is wiped leaves the links in place: they are controls on top of the drawing.
void wipe(const std::deque<TextOperation>& captions, Runs& runs) {
    runs.clear();
    for (const TextOperation& caption : captions)
        runs.push_back(&caption);
}

/// The runs in drawing order; `captions` holds those that links stand for.
Runs runsOn(const Recording& recording, SurfaceId surface, std::deque<TextOperation>& captions) {
    const auto links = standingLinks(recording);
    auto nextLink = links.begin();
    Runs runs;
    for (const Operation& operation : recording.operations()) {
        if (const auto* clear = std::get_if<ClearOperation>(&operation)) {
            if (clear->surface == surface)
                wipe(captions, runs);
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
                addCaption(*link, captions, runs);
        }
    }
    return runs;
}

double foot(const TextOperation& run) {
    return run.y + fontPixels(run.font.points) * 15.0;
}

/// Runs side by side, and the extent of the tallest of them: indices and exponents stand on a line
/// when their middle lies within it, or little outside.
struct Line {
    Runs runs;
    double top = 0;
    double bottom = 0;

    bool takes(const TextOperation& run) const {
        const double slack = std::max(bottom - top, foot(run) - run.y) / 4;
        const double middle = (run.y + foot(run)) / 2;
        return middle >= top - slack && middle <= bottom + slack;
    }

    void add(const TextOperation& run) {
        if (runs.empty() || foot(run) - run.y > bottom - top) {
            top = run.y;
            bottom = foot(run);
        }
        runs.push_back(&run);
    }
};

/// How many of the last lines a run may still belong to: the cells of a table are drawn one after
/// the other, each with lines of its own.
constexpr std::size_t kOpenLines = 64;

std::vector<Line> lines(const Runs& runs) {
    std::vector<Line> lines;
    for (const TextOperation* run : runs) {
        const std::size_t open = std::min(lines.size(), kOpenLines);
        const auto found = std::find_if(lines.rbegin(), lines.rbegin() + static_cast<long>(open),
                                        [&](const Line& line) { return line.takes(*run); });
        if (found != lines.rbegin() + static_cast<long>(open))
            found->add(*run);
        else
            lines.emplace_back().add(*run);
    }
    std::stable_sort(lines.begin(), lines.end(),
                     [](const Line& a, const Line& b) { return a.top < b.top; });
    return lines;
}

QString joined(Runs line) {
    std::stable_sort(line.begin(), line.end(),
                     [](const auto* a, const auto* b) { return a->x < b->x; });
    QString text;
    double end = 0;
    for (const TextOperation* run : line) {
        if (!text.isEmpty() && run->x > end + kWordGap && !text.endsWith(u' '))
            text += u' ';
        text += readableSigns(run->font.face, run->text);
        end = run->x + run->width;
    }
    return text.trimmed();
}

} // namespace

QString readableText(const Recording& recording, SurfaceId surface) {
    QString text;
    std::deque<TextOperation> captions; // stay in place while it grows
    for (Line& line : lines(runsOn(recording, surface, captions))) {
        const QString words = joined(std::move(line.runs));
        if (!words.isEmpty())
            text += words + u'\n';
    }
    return text;
}

} // namespace platform
