#include "search/course.h"
#include "search/searchable_pages.h"

#include <QString>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace search {
namespace {

// A literal search, character by character in UTF-16 and with Qt's knowledge of letters, beside the
// one in folded bytes.

char16_t literallyFolded(QChar c, bool ignoreAccents) {
    c = c.toLower();
    if (!ignoreAccents)
        return c.unicode();
    if (c == u'’')
        return u'\'';
    return QString(c).normalized(QString::NormalizationForm_D).front().toLower().unicode();
}

std::u16string literallyFolded(std::u16string_view from, bool ignoreAccents) {
    std::u16string to(from);
    for (char16_t& c : to)
        c = literallyFolded(QChar(c), ignoreAccents);
    return to;
}

/// `folded` are the sources, their accents taken off if the query ignores them.
std::vector<int> literallyFound(const std::vector<std::u16string>& folded, const Query& query) {
    std::vector<int> all;
    for (std::size_t p = 1; p < folded.size(); ++p) {
        const auto count = std::ranges::count_if(query.words, [&](const std::u16string& word) {
            return folded[p].find(literallyFolded(word, query.ignoreAccents)) != word.npos;
        });
        const std::ptrdiff_t needed = query.allWords ? std::ssize(query.words) : 1;
        if (count >= needed)
            all.push_back(static_cast<int>(p));
    }
    return all;
}

class Chance {
public:
    std::size_t below(std::size_t end) { return engine_() % end; }

    /// Few different characters, so that much is found; mostly of one kind, so that vectors are
    /// full; among them those whose folded bytes come near to each other.
    std::u16string text(std::size_t length) {
        static constexpr std::u16string_view kAlphabets[] = {
            u"aAbB eE.\r\n",
            u"eEéÉèÈ×÷ßÿŸÀÞ ",
            u"aαΑάΆωΩ\u2126kK\u212AåÅ\u212B œŒ",
            u"iIİıſ\u0100\u0001\u0141\u4101\uFFFF\uFFFDAÁ ",
            u"\xD83D\xDE00\xDE01x\xD83E Ap\u00C0\u00CF",
        };
        const std::u16string_view alphabet = kAlphabets[below(std::size(kAlphabets))];
        std::u16string text;
        while (text.size() < length)
            text += below(40) == 0 ? u'’' : alphabet[below(alphabet.size())];
        return text;
    }

    /// A piece of `text` up to its first space, or else some other word.
    std::u16string word(const std::u16string& text) {
        const std::size_t first = text.empty() ? 0 : below(text.size());
        std::u16string word = text.substr(first, 1 + below(below(4) == 0 ? 90 : 5));
        word = word.substr(0, word.find(u' '));
        return word.empty() ? u"é" : word;
    }

private:
    std::mt19937 engine_{20};
};

TEST(PageSearch, findsWhatALiteralSearchFinds) {
    Chance chance;
    std::vector<std::u16string> sources;
    for (int i = 0; i < 2100; ++i)
        sources.push_back(chance.text(chance.below(chance.below(20) == 0 ? 2000 : 100)));
    std::vector<std::u16string> folded[2];
    for (const bool ignoreAccents : {false, true})
        for (const std::u16string& source : sources)
            folded[ignoreAccents].push_back(literallyFolded(source, ignoreAccents));
    const Course course(withSources(sources));
    // Without a copy, with one of the first pages only, and with one of all.
    std::vector<SearchablePages> everyCopy;
    for (const std::size_t most : {std::size_t{0}, std::size_t{200'000}, kFoldedCopyBytes})
        everyCopy.push_back(*SearchablePages::open(course.database(), most));
    std::size_t hits = 0;
    for (int i = 0; i < 40; ++i) {
        Query query;
        const std::u16string& source = sources[chance.below(sources.size())];
        for (std::size_t words = 1 + chance.below(3); words > 0; --words)
            query.words.push_back(chance.word(source));
        query.allWords = chance.below(2) == 0;
        query.ignoreAccents = chance.below(2) == 0;
        const std::vector<int> expected = literallyFound(folded[query.ignoreAccents], query);
        hits += expected.size();
        for (SearchablePages& pages : everyCopy)
            ASSERT_EQ(found(pages, query), expected)
                << testing::PrintToString(query.words) << query.allWords << query.ignoreAccents;
    }
    EXPECT_GT(hits, 1000u); // or the words were ill chosen
    EXPECT_GT(everyCopy[1].copyBytes(), 0u);
    EXPECT_LT(everyCopy[1].copyBytes(), everyCopy[2].copyBytes() / 2);
}

} // namespace
} // namespace search
