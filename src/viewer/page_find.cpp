#include "viewer/page_find.h"

#include "text/letters.h"

#include <algorithm>
#include <utility>

namespace viewer {

FoundWords typedWords(const QString& typed) {
    const QString text = typed.trimmed();
    if (text.isEmpty())
        return {};
    const bool hasAccent = std::any_of(text.begin(), text.end(), [](QChar c) {
        return text::withoutAccent(c.unicode()) != c.unicode();
    });
    return {{text}, !hasAccent};
}

void PageFind::search(FoundWords sought, const page::Recording& recording,
                      const page::TextMetrics& metrics, const std::vector<Part>& parts,
                      const Place& from) {
    forgetPage();
    sought_ = std::move(sought);
    for (std::size_t part = 0; part < parts.size(); ++part) {
        const auto all = occurrences(recording, parts[part].surface, metrics, sought_);
        cutOff_ = cutOff_ || all.size() >= kMaxOccurrences;
        for (const Occurrence& one : all)
            if (one.area.intersects(parts[part].seen))
                found_.push_back({{part, one.lineTop, one.area.left()}, one.area});
    }
    const auto first = std::find_if(found_.begin(), found_.end(),
                                    [&](const Found& one) { return one.place >= from; });
    current_ = first == found_.end() ? 0 : static_cast<std::size_t>(first - found_.begin());
}

void PageFind::clear() {
    *this = {};
}

void PageFind::forgetPage() {
    found_.clear();
    current_ = 0;
    cutOff_ = false;
}

void PageFind::next() {
    if (!found_.empty())
        current_ = (current_ + 1) % found_.size();
}

void PageFind::previous() {
    if (!found_.empty())
        current_ = (current_ + found_.size() - 1) % found_.size();
}

std::optional<std::size_t> PageFind::current() const {
    return found_.empty() ? std::nullopt : std::optional(current_);
}

QString findStatus(const PageFind& find) {
    if (find.sought().words.empty())
        return {};
    if (!find.current())
        return QStringLiteral("Aucune occurrence");
    return QStringLiteral("%1 sur %2%3")
        .arg(*find.current() + 1)
        .arg(find.found().size())
        .arg(find.isCutOff() ? QStringLiteral(" ou plus") : QString());
}

} // namespace viewer
