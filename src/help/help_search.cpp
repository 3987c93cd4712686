#include "help/help_search.h"

#include "text/letters.h"

#include <algorithm>

namespace help {

namespace {

constexpr qsizetype kShortWord = 2;     ///< "de", "le": in every page
constexpr qsizetype kLeastSingular = 3; ///< letters that a plural leaves

// Characters of a line of context before and behind the word.
constexpr qsizetype kBefore = 24;
constexpr qsizetype kBehind = 56;

/// Pictures and the edges of tables are no letters, nor parts of a word.
char16_t folded(QChar c) {
    if (c == QChar::ObjectReplacementCharacter || c.isNonCharacter())
        return u' ';
    return text::plainLetter(c.unicode());
}

QString foldedText(QStringView text) {
    QString all(text.size(), Qt::Uninitialized);
    std::ranges::transform(text, all.begin(), folded);
    return all;
}

bool isWordAt(QStringView text, qsizetype at) {
    return at >= 0 && at < text.size() && text::isWordCharacter(folded(text[at]));
}

bool hasWord(QStringView text) {
    return std::ranges::any_of(text, [](QChar c) { return text::isWordCharacter(folded(c)); });
}

QString singular(QString word) {
    const bool isPlural = word.endsWith(u's') || word.endsWith(u'x');
    if (isPlural && word.size() > kLeastSingular)
        word.chop(1);
    return word;
}

QStringList wordsOf(const QString& typed) {
    QString letters = foldedText(typed);
    for (QChar& c : letters)
        if (!text::isWordCharacter(c.unicode()))
            c = u' ';
    return letters.split(u' ', Qt::SkipEmptyParts);
}

/// A stretch of a page as one line: where a block ends a dot stands, pictures are left out.
QString asLine(QStringView stretch) {
    QString line;
    for (const QChar c : stretch) {
        if (c == QChar::ObjectReplacementCharacter)
            continue;
        const bool isBreak = c == QChar::ParagraphSeparator || c.isNonCharacter();
        line += isBreak ? QStringLiteral(" \u00B7 ") : QString(c);
    }
    line = line.simplified();
    while (line.contains(QStringLiteral("\u00B7 \u00B7")))
        line.replace(QStringLiteral("\u00B7 \u00B7"), QStringLiteral("\u00B7"));
    if (line.startsWith(u'\u00B7'))
        line.remove(0, 2);
    return line.endsWith(u'\u00B7') ? line.chopped(2) : line;
}

/// The line around the word at `hit` of `body`.
QString lineAround(QStringView body, const Span& hit) {
    qsizetype start = std::max<qsizetype>(0, hit.start - kBefore);
    while (isWordAt(body, start - 1) && isWordAt(body, start))
        --start;
    while (!isWordAt(body, start) && start < hit.start)
        ++start;
    qsizetype end = std::min(body.size(), hit.start + kBehind);
    while (isWordAt(body, end - 1) && isWordAt(body, end))
        ++end;
    const QString line = asLine(body.sliced(start, end - start));
    return (hasWord(body.first(start)) ? QStringLiteral("… ") : QString()) + line +
           (hasWord(body.sliced(end)) ? QStringLiteral(" …") : QString());
}

struct Ranked {
    Found found;
    int words = 0;      ///< looked for and found
    int titleWords = 0; ///< of these, in the title
    qsizetype hits = 0;
};

Ranked judge(const HelpPage& page, int position, const HelpQuery& query) {
    const QStringView body = QStringView(page.text).sliced(page.title.size());
    const QList<Span> hits = query.hits(body);
    const QString line = lineAround(body, hits.isEmpty() ? Span() : hits.first());
    return {{position, line, query.hits(line)},
            query.wordsIn(page.text),
            query.wordsIn(page.title),
            hits.size()};
}

} // namespace

HelpQuery::HelpQuery(const QString& typed) {
    const QStringList all = wordsOf(typed);
    for (const QString& word : all)
        if (word.size() > kShortWord)
            words_.append(singular(word));
    if (words_.isEmpty())
        words_ = all;
    words_.removeDuplicates();
    words_ = words_.mid(0, kMostWords);
}

/// The word looked for that the one beginning at `start` begins with; -1 for none.
qsizetype HelpQuery::wordAt(QStringView folded, qsizetype start) const {
    for (qsizetype i = 0; i < words_.size(); ++i)
        if (folded.sliced(start).startsWith(words_[i]))
            return i;
    return -1;
}

/// Hands every hit over with the word looked for.
template <class Visit>
void HelpQuery::visitHits(QStringView text, Visit visit) const {
    const QString folded = foldedText(text);
    for (qsizetype start = 0; start < folded.size();) {
        if (!isWordAt(folded, start)) {
            ++start;
            continue;
        }
        qsizetype end = start;
        while (isWordAt(folded, end))
            ++end;
        if (const qsizetype word = wordAt(folded, start); word >= 0)
            visit(Span{start, end - start}, word);
        start = end;
    }
}

QList<Span> HelpQuery::hits(QStringView text) const {
    QList<Span> all;
    visitHits(text, [&all](const Span& hit, qsizetype) { all.append(hit); });
    return all;
}

int HelpQuery::wordsIn(QStringView text) const {
    QList<bool> seen(words_.size(), false);
    visitHits(text, [&seen](const Span&, qsizetype word) { seen[word] = true; });
    return static_cast<int>(seen.count(true));
}

QList<Found> search(const HelpBook& book, const HelpQuery& query) {
    if (query.isEmpty())
        return {};
    QList<Ranked> all;
    for (qsizetype i = 0; i < book.pages().size(); ++i)
        all.append(judge(book.pages()[i], static_cast<int>(i), query));
    const auto most = std::ranges::max_element(all, {}, &Ranked::words);
    if (most == all.end() || most->words == 0)
        return {};
    all.removeIf([words = most->words](const Ranked& page) { return page.words < words; });
    std::ranges::stable_sort(all, [](const Ranked& a, const Ranked& b) {
        return a.titleWords != b.titleWords ? a.titleWords > b.titleWords : a.hits > b.hits;
    });
    QList<Found> found;
    for (const Ranked& page : all)
        found.append(page.found);
    return found;
}

} // namespace help
