#include "search/extract_text.h"

#include "look/palette.h"
#include "text/letters.h"

#include <QColor>

#include <algorithm>
#include <vector>

namespace search {

namespace {

/// Characters shown before and behind a word, and passages at most: a dozen lines of the panel.
constexpr qsizetype kAround = 70;
constexpr std::size_t kPassages = 4;
/// What a hostile page holds beyond, in UTF-16 units, is passed over.
constexpr qsizetype kMostText = 1'000'000;

struct Stretch {
    qsizetype from;
    qsizetype to;
};

/// As the search compares; one character for one, so that places stay what they are.
QString folded(const QString& text, bool ignoreAccents) {
    QString all = text;
    for (QChar& c : all) {
        const char16_t small = text::lowerCase(c.unicode());
        c = QChar(ignoreAccents ? text::plainLetter(small) : small);
    }
    return all;
}

/// Where the words stand, those that overlap as one, as far as passages can show them.
std::vector<Stretch> placesOf(const Query& query, const QString& text) {
    const QString sought = folded(text, query.ignoreAccents);
    std::vector<Stretch> all;
    for (const std::u16string& word : query.words) {
        const QString wanted = folded(QString::fromStdU16String(word), query.ignoreAccents);
        std::size_t places = 0;
        for (qsizetype at = sought.indexOf(wanted); at >= 0 && places < kPassages * kPassages;
             at = sought.indexOf(wanted, at + wanted.size()), ++places)
            all.push_back({at, at + wanted.size()});
    }
    std::sort(all.begin(), all.end(), [](Stretch a, Stretch b) { return a.from < b.from; });
    std::vector<Stretch> apart;
    for (const Stretch place : all)
        if (!apart.empty() && place.from <= apart.back().to)
            apart.back().to = std::max(apart.back().to, place.to);
        else
            apart.push_back(place);
    return apart;
}

/// About kAround characters more on both sides, to the next blank inwards.
Stretch widened(Stretch place, const QString& text) {
    qsizetype from = std::max<qsizetype>(0, place.from - kAround);
    while (from > 0 && from < place.from && !text[from - 1].isSpace())
        ++from;
    qsizetype to = std::min(text.size(), place.to + kAround);
    while (to < text.size() && to > place.to && !text[to].isSpace())
        --to;
    return {from, to};
}

std::vector<Stretch> passagesAround(const std::vector<Stretch>& places, const QString& text) {
    std::vector<Stretch> passages;
    for (const Stretch place : places) {
        const Stretch wide = widened(place, text);
        if (!passages.empty() && wide.from <= passages.back().to)
            passages.back().to = std::max(passages.back().to, wide.to);
        else if (passages.size() == kPassages)
            break;
        else
            passages.push_back(wide);
    }
    return passages;
}

QString passageHtml(Stretch passage, const std::vector<Stretch>& places, const QString& text) {
    const QString mark = QStringLiteral("<span style=\"background-color:") +
                         QColor::fromRgb(look::kMarkTint).name() + QStringLiteral("\"><b>");
    QString html = QStringLiteral("<p style=\"margin-top:0px; margin-bottom:8px\">");
    if (passage.from > 0)
        html += QStringLiteral("… ");
    qsizetype at = passage.from;
    for (const Stretch place : places) {
        if (place.from < at || place.to > passage.to)
            continue;
        html += text.mid(at, place.from - at).toHtmlEscaped() + mark +
                text.mid(place.from, place.to - place.from).toHtmlEscaped() +
                QStringLiteral("</b></span>");
        at = place.to;
    }
    html += text.mid(at, passage.to - at).toHtmlEscaped();
    if (passage.to < text.size())
        html += QStringLiteral(" …");
    return html + QStringLiteral("</p>");
}

} // namespace

QString extractHtml(const QString& pageText, const Query& query) {
    const QString text = pageText.left(kMostText).simplified();
    const std::vector<Stretch> places = placesOf(query, text);
    QString html;
    for (const Stretch passage : passagesAround(places, text))
        html += passageHtml(passage, places, text);
    if (!html.isEmpty())
        return html;
    html =
        QStringLiteral("<p style=\"margin-top:0px; margin-bottom:8px\"><i>Rien de cela ne se lit "
                       "sur la page\u00A0: les mots sont dans une instruction de mise en page, "
                       "comme le nom d’une image.</i></p>");
    return text.isEmpty() ? html : html + passageHtml(widened({0, 0}, text), {}, text);
}

} // namespace search
