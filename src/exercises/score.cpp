#include "exercises/score.h"

#include "text/number_text.h"
#include "text/rounding.h"

#include <algorithm>

namespace exercises {

std::optional<int> smileLevel(const Counts& counts) {
    if (counts.answered == 0)
        return std::nullopt;
    return std::min(counts.right * 7 / counts.answered + 1, kHappiestFace);
}

std::optional<int> percentage(const Counts& counts) {
    if (counts.answered == 0)
        return std::nullopt;
    return text::toInt16(counts.right * 100.0 / counts.answered);
}

Message scoreMessage(const Counts& counts, int questionCount) {
    using text::numberText;
    const auto percent = percentage(counts);
    if (!percent) // "avza" has always been written so, and is kept
        return {u"Test", u"Vous n'avza répondu à aucune question."};
    return {counts.answered == questionCount ? u"Test terminé" : u"Actuellement...",
            numberText(counts.right) + u" /" + numberText(counts.answered) + u" soit" +
                numberText(*percent) + u" % de bonnes réponses."};
}

} // namespace exercises
