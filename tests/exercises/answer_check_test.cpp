#include "exercises/answer_check.h"
#include "text/letters.h"
#include "text/utf8.h"

#include <QChar>

#include <gtest/gtest.h>

#include <map>
#include <random>

namespace exercises {
namespace {

/// A text that was typed, after what it is to become or what is to be found in it.
struct Row {
    const char16_t* expected;
    const char16_t* typed;
};

void expectFolded(std::initializer_list<Row> rows) {
    for (const Row& row : rows)
        EXPECT_EQ(foldedAnswer(row.typed), row.expected) << text::toUtf8(row.typed);
}

void expectVerdict(bool right, std::initializer_list<Row> rows) {
    for (const Row& row : rows)
        EXPECT_EQ(castexte(row.expected, row.typed), right)
            << text::toUtf8(row.expected) << " <- " << text::toUtf8(row.typed);
}

TEST(FoldedAnswer, hasPlainLettersAndSpaces) {
    expectFolded({Row{u"energie", u"Énergie"}, Row{u"eeeauoc eeeauoc", u"ÉÈÊÀÙÔÇ éèêàùôç"},
                  Row{u"a b c d e f g h i j k", u"a+b*c/d'e,f;g.h!i?j:k"}, Row{u"9 81", u"9.81"},
                  Row{u"demivie", u"demi-vie"}, Row{u"ab", u"a_b"}, Row{u"  a  ", u"  a  "},
                  Row{u"", u"-"}});
}

// Other accents stay, and the apostrophe of print is not the typed one; meant so.
TEST(FoldedAnswer, leavesOtherLetters) {
    expectFolded({Row{u"âîëüû œ", u"ÂÎËÜÛ œ"}, Row{u"c’est", u"c’est"}});
}

// What slides into the place of a deleted character is not looked at; meant so.
TEST(FoldedAnswer, passesOverWhatFollowsADeletion) {
    expectFolded({Row{u"a-b", u"a--b"}, Row{u"--", u"----"}, Row{u"é", u"-É"}, Row{u"_é", u"-_-É"},
                  Row{u"a.b", u"a-.b"}, Row{u"éé", u"-é-é"}});
}

TEST(Castexte, findsWholeWords) {
    expectVerdict(true, {Row{u"energie", u"Énergie"}, Row{u"Energie", u"énergie"},
                         Row{u"masse", u"c'est la masse"}, Row{u"masse", u"amasse masse"},
                         Row{u"masse", u"(masse)"}, Row{u"masse", u"masse…"},
                         Row{u"force vive", u"la force vive"}, Row{u"9 81", u"9,81"},
                         Row{u"Ω", u"10 ω"}, Row{u"a a b", u"a a a b"},
                         Row{u"ohm", u"10 ohms environ"}, Row{u"m s", u"vers 3 m/s à peu près"}});
    expectVerdict(false, {Row{u"masse", u"massette"}, Row{u"masse", u"la biomasse"},
                          Row{u"electron", u"electronique"}, Row{u"masse", u"masse2"},
                          Row{u"9 81", u"9,810"}, Row{u"m", u"m²"}, Row{u"masse", u""}});
}

TEST(Castexte, addsEndingsToTheSolutionOnly) {
    expectVerdict(true, {Row{u"electron", u"électrons"}, Row{u"petit", u"PETITE"},
                         Row{u"petit", u"petites"}, Row{u"eau", u"eaux"}});
    expectVerdict(false,
                  {Row{u"force", u"forcess"}, Row{u"petit", u"petitse"}, Row{u"forces", u"force"}});
}

// Only what is typed is folded, so most of these solutions fit nothing; meant so.
TEST(Castexte, takesTheSolutionAsItStands) {
    expectVerdict(
        false, {Row{u"énergie", u"énergie"}, Row{u"demi-vie", u"demi-vie"}, Row{u"9,81", u"9,81"}});
    expectVerdict(true, {Row{u"âge", u"ÂGE"}, Row{u"élan", u"-élan"}});
}

TEST(Castexte, onlyTheEmptyAnswerFitsAnEmptySolution) {
    for (const char16_t* const solution : {u"", u"  "}) {
        expectVerdict(true, {Row{solution, u""}});
        expectVerdict(false, {Row{solution, u"masse"}, Row{solution, u"la masse !"},
                              Row{solution, u"es"}, Row{solution, u"-"}, Row{solution, u" ,  "}});
    }
    expectVerdict(true, {Row{u"%", u"50 %."}}); // a sign alone is something to look for
}

TEST(Letters, agreeWithUnicode) {
    for (char16_t c = 0; c < 0x0180; ++c)
        EXPECT_EQ(text::lowerCase(c), QChar(c).toLower().unicode()) << int(c);
    for (char16_t c = 0x0386; c < 0x03CF; ++c)
        EXPECT_EQ(text::lowerCase(c), QChar(c).toLower().unicode()) << int(c);
    for (const char16_t c : u"\u2126\u212A\u212B\uFFFF")
        EXPECT_EQ(text::lowerCase(c), QChar(c).toLower().unicode()) << int(c);
    for (int c = 0; c <= 0xFFFF; ++c) {
        const QChar character(c);
        const bool counts = character.isLetterOrNumber();
        if (counts || c < 0x0250) {
            EXPECT_EQ(text::isWordCharacter(character.unicode()), counts) << c;
        }
    }
    for (const char16_t c : u"\u2014\u2026\u20AC\u2192\u221E\u3001\xD83D\xDE00\xFFFD")
        EXPECT_FALSE(text::isWordCharacter(c)) << int(c);
}

// The check once more, in the plainest way: each character selected in a buffer and replaced there,
// each ending sought on its own at every place, letters as Qt knows them. Far too slow for long
// texts.

std::u16string smallLetters(std::u16string text) {
    for (char16_t& c : text)
        c = QChar(c).toLower().unicode();
    return text;
}

bool isWordAt(const std::u16string& text, std::size_t at) {
    return at < text.size() && QChar(text[at]).isLetterOrNumber();
}

std::u16string foldLiterally(const std::u16string& typed) {
    static const std::map<char16_t, std::u16string> table = {
        {u'é', u"e"}, {u'è', u"e"},  {u'ê', u"e"}, {u'à', u"a"}, {u'ù', u"u"},
        {u'ô', u"o"}, {u'-', u""},   {u'_', u""},  {u'+', u" "}, {u'*', u" "},
        {u'/', u" "}, {u'\'', u" "}, {u',', u" "}, {u';', u" "}, {u'.', u" "},
        {u'!', u" "}, {u'?', u" "},  {u':', u" "}, {u'ç', u"c"}};
    std::u16string buffer = smallLetters(typed);
    for (std::size_t i = 0; i <= typed.size(); ++i)
        if (const auto rule = i < buffer.size() ? table.find(buffer[i]) : table.end();
            rule != table.end())
            buffer.replace(i, 1, rule->second);
    return buffer;
}

bool findLiterally(const std::u16string& text, const std::u16string& word) {
    for (std::size_t at = text.find(word); at != text.npos; at = text.find(word, at + 1)) {
        const std::size_t end = at + word.size();
        if ((at == 0 || !isWordAt(text, at - 1)) && !isWordAt(text, end))
            return true;
    }
    return false;
}

bool checkLiterally(const std::u16string& solution, const std::u16string& typed) {
    if (QStringView(solution).trimmed().isEmpty())
        return typed.empty();
    const std::u16string buffer = foldLiterally(typed);
    for (const char16_t* ending : {u"", u"S", u"E", u"ES", u"X"})
        if (findLiterally(buffer, smallLetters(solution + ending)))
            return true;
    return false;
}

/// Latin letters and signs of all kinds, but so that the folding table and the words of the
/// solution come up often.
std::u16string anything(std::mt19937& random, std::size_t most) {
    static constexpr std::u16string_view kOften = u"-_-_ ..éÉàabasesxSE";
    std::u16string text(random() % (most + 1), u' ');
    for (char16_t& c : text) {
        const auto any = random();
        c = any % 8 == 0 ? static_cast<char16_t>((any >> 8) % 0x0180)
                         : kOften[(any >> 8) % kOften.size()];
    }
    return text;
}

TEST(CastexteAnywhere, agreesWithThePlainestWay) {
    std::mt19937 random(5);
    int right = 0;
    for (int i = 0; i < 20'000; ++i) {
        const std::u16string typed = anything(random, 24);
        const std::u16string solution = anything(random, 3);
        ASSERT_EQ(foldedAnswer(typed), foldLiterally(typed)) << text::toUtf8(typed);
        const bool expected = checkLiterally(solution, typed);
        ASSERT_EQ(castexte(solution, typed), expected)
            << text::toUtf8(solution) << " <- " << text::toUtf8(typed);
        right += expected;
    }
    EXPECT_GT(right, 500); // the rows do reach both verdicts
}

/// With time that grows as the square of the length this would outlast the run.
TEST(CastexteAnywhere, longTextsTakeNoLonger) {
    const std::size_t length = 1'000'000;
    const std::u16string dashes(length, u'-');
    EXPECT_EQ(foldedAnswer(dashes).size(), length / 2);
    std::u16string words;
    for (std::size_t i = 0; i < length / 2; ++i)
        words += u"a ";
    EXPECT_FALSE(castexte(words.substr(0, length / 2) + u"b", words));
    EXPECT_TRUE(castexte(words.substr(0, length / 2), words));
}

} // namespace
} // namespace exercises
