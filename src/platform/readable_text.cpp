#include "platform/readable_text.h"

#include "platform/sign_faces.h"

#include <algorithm>
#include <vector>

namespace platform {

namespace {

/// Gap, in twips, from which two runs of a line count as separate words.
constexpr double kWordGap = 30;

using Runs = std::vector<const TextOperation*>;

Runs runsOn(const Recording& recording, SurfaceId surface) {
    Runs runs;
    for (const Operation& operation : recording.operations()) {
        if (const auto* clear = std::get_if<ClearOperation>(&operation)) {
            if (clear->surface == surface)
                runs.clear();
        } else if (const auto* text = std::get_if<TextOperation>(&operation)) {
            if (text->surface != surface)
                continue;
            // A shadow is the same text, drawn just before and a few pixels lower.
            if (!runs.empty() && runs.back()->text == text->text && runs.back()->y > text->y &&
                runs.back()->x > text->x && runs.back()->y - text->y <= 20 * 15 &&
                runs.back()->y - text->y == runs.back()->x - text->x)
                runs.pop_back();
            runs.push_back(text);
        }
    }
    return runs;
}

double foot(const TextOperation& run) {
    return run.y + fontPixels(run.font.points) * 15.0;
}

/// Indices and exponents stand on a line when their middle lies within the line's height.
bool sharesLine(const TextOperation& run, double top, double bottom) {
    const double middle = (run.y + foot(run)) / 2;
    return middle >= top && middle <= bottom;
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
    Runs runs = runsOn(recording, surface);
    // Small letters after large ones of the same line would otherwise open a line of their own.
    std::stable_sort(runs.begin(), runs.end(),
                     [](const auto* a, const auto* b) { return foot(*a) < foot(*b); });
    QString text;
    for (std::size_t i = 0; i < runs.size();) {
        double top = runs[i]->y;
        double bottom = foot(*runs[i]);
        Runs line;
        while (i < runs.size() && (line.empty() || sharesLine(*runs[i], top, bottom))) {
            top = std::min(top, runs[i]->y);
            bottom = std::max(bottom, foot(*runs[i]));
            line.push_back(runs[i++]);
        }
        const QString words = joined(std::move(line));
        if (!words.isEmpty())
            text += words + u'\n';
    }
    return text;
}

} // namespace platform
