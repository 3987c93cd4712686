#include "coursetool/source_parts.h"

#include "coursetool/source_text.h"

#include <algorithm>

namespace coursetool {

namespace {

constexpr std::size_t kNone = std::string_view::npos;

/// Offset of the first line at or after `from`, itself a line's start, that is a fence.
std::size_t findFence(std::string_view text, std::size_t from) {
    while (from <= text.size()) {
        const std::size_t end = std::min(text.find('\n', from), text.size());
        if (text.substr(from, end - from) == kFence)
            return from;
        from = end + 1;
    }
    return kNone;
}

/// Offset just after the fence at `fence` and its line end; nothing when it has no line end.
std::optional<std::size_t> afterFence(std::string_view text, std::size_t fence) {
    const std::size_t end = fence + kFence.size();
    return end < text.size() ? std::optional(end + 1) : std::nullopt;
}

int lineEnds(std::string_view text) {
    return static_cast<int>(std::count(text.begin(), text.end(), '\n'));
}

} // namespace

std::optional<SourceParts> splitFrontMatter(std::string_view source, const std::string& file,
                                            Report& report) {
    const auto start = findFence(source, 0) == 0 ? afterFence(source, 0) : std::nullopt;
    if (!start) {
        report.fault({file, 1, 1}, "les champs manquent : écrire d’abord une ligne « +++ », un "
                                   "champ par ligne, puis une deuxième ligne « +++ »");
        return std::nullopt;
    }
    const std::size_t fence = findFence(source, *start);
    if (fence == kNone) {
        report.fault({file, 1, 1}, "les champs qui commencent ici n’ont pas de fin : écrire une "
                                   "ligne « +++ » après le dernier");
        return std::nullopt;
    }
    SourceParts parts;
    parts.frontMatter = source.substr(*start, fence - *start);
    parts.bodyLine = lineEnds(source.substr(0, fence)) + 2;
    if (const auto body = afterFence(source, fence))
        parts.body = source.substr(*body);
    return parts;
}

bool tellsQuestion(std::string_view source) {
    constexpr std::string_view kReference = "REFERENCE";
    const std::size_t end =
        std::min(source.find(std::string("\n").append(kFence), 1), source.size());
    const std::string_view fields = source.substr(0, end);
    return fields.find(std::string("\n").append(kReference)) != kNone;
}

QuestionParts splitQuestion(std::string_view body, int bodyLine, const std::string& file,
                            Report& report) {
    const std::size_t fence = findFence(body, 0);
    if (fence == kNone)
        return {body, std::nullopt, 0};
    const std::size_t comment = afterFence(body, fence).value_or(body.size());
    for (std::size_t more = findFence(body, comment); more != kNone;
         more = findFence(body, more + kFence.size() + 1))
        report.fault({file, bodyLine + lineEnds(body.substr(0, more)), 1},
                     "« +++ » en trop : pour une ligne de texte, écrire « \\+++ »");
    return {body.substr(0, fence), body.substr(comment),
            bodyLine + lineEnds(body.substr(0, comment))};
}

} // namespace coursetool
