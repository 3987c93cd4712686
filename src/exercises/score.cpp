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

QString spacedNumber(int number) {
    return QString::fromStdU16String(text::numberText(number));
}

platform::Message scoreMessage(const Counts& counts, int questionCount) {
    const auto percent = percentage(counts);
    if (!percent) // "avza" has always been written so, and is kept
        return {.title = QStringLiteral("Test"),
                .text = QStringLiteral("Vous n'avza répondu à aucune question.")};
    return {.title = counts.answered == questionCount ? QStringLiteral("Test terminé")
                                                      : QStringLiteral("Actuellement..."),
            .text = spacedNumber(counts.right) + QStringLiteral(" /") +
                    spacedNumber(counts.answered) + QStringLiteral(" soit") +
                    spacedNumber(*percent) + QStringLiteral(" % de bonnes réponses.")};
}

} // namespace exercises
