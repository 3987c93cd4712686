#include "search/course.h"
#include "search/searchable_pages.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace search {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

SearchablePages opened(const Course& course, std::size_t mostBytes = kFoldedCopyBytes) {
    auto pages = SearchablePages::open(course.database(), mostBytes);
    EXPECT_TRUE(pages) << pages.error().sentence;
    return *std::move(pages);
}

std::vector<int> found(SearchablePages& pages, const char16_t* typed, bool allWords = false,
                       bool ignoreAccents = false) {
    return search::found(pages, {queryWords(typed), allWords, ignoreAccents});
}

TEST(PageSearch, findsWordsInTheRawSources) {
    const Course course(withSources({
        u"lumière",                      // 0: never examined
        u"La LUMIÈRE du jour¶",          // 1
        u"##IHABFlentille.bmp,12\r\nun", // 2: inside a directive
        u"Lumiere sans accent",          // 3
        u"l’Œil et le cœur, ΔE = hν",    // 4
        u"jourla",                       // 5: and the next page go on as "lalumière"
        u"lumière",                      // 6
    }));
    auto pages = opened(course);
    const struct {
        const char16_t* typed;
        std::vector<int> any;
        std::vector<int> all;
    } rows[] = {
        {u"lumière", {1, 6}, {1, 6}},
        {u"lumiere", {3}, {3}},
        {u"JOUR ; lumière", {1, 5, 6}, {1}},
        {u"lumière jour", {1, 5, 6}, {1}},
        {u"ihabf", {2}, {2}},
        {u"12", {2}, {2}},
        {u"œil δe", {4}, {4}},
        {u"Eil", {}, {}}, // "Œ" is no "OE"
        {u"lalumière", {}, {}},
        {u"lumière absent", {1, 6}, {}},
        {u"la la", {1, 5}, {1, 5}},
    };
    for (const auto& [typed, any, all] : rows) {
        EXPECT_EQ(found(pages, typed), any) << testing::PrintToString(std::u16string(typed));
        EXPECT_EQ(found(pages, typed, true), all) << testing::PrintToString(std::u16string(typed));
    }
    EXPECT_THAT(found(pages, u"lumiere", false, true), ElementsAre(1, 3, 6));
    EXPECT_THAT(found(pages, u"lùmïère", false, true), ElementsAre(1, 3, 6));
    EXPECT_THAT(found(pages, u"a"), IsEmpty());
}

TEST(PageSearch, passesOverRecordsAndKeepsWhatTheListShows) {
    const Course course({{std::int32_t{1}, u"zéro", true, u"mot"},
                         {std::int32_t{70}, u"Titre un", true, u"un mot"},
                         {std::int32_t{2}, u"éteint", false, u"mot"},
                         {std::int32_t{-3}, {}, true, u"mot"},
                         {{}, u"sans numéro, Ω", true, u"mot"},
                         {std::int32_t{4}, u"sans source", true, {}},
                         {std::int32_t{70}, u"même numéro", true, u"mot"}});
    auto pages = opened(course);
    PageSearch search(pages, {{u"mot"}});
    EXPECT_THAT(positions(search), ElementsAre(1, 3, 4, 6));
    EXPECT_THAT(search.found(),
                ElementsAre(FoundPage{1, 70, u"Titre un"}, FoundPage{3, -3, u""},
                            FoundPage{4, 0, u"sans numéro, Ω"}, FoundPage{6, 70, u"même numéro"}));
    EXPECT_TRUE(pages.problems().empty());
}

TEST(PageSearch, ofAFewRecordsOrNoneEnds) {
    for (int count = 0; count < 4; ++count) {
        const Course course(withSources(std::vector<std::u16string>(std::size_t(count), u"mot")));
        auto pages = opened(course);
        EXPECT_EQ(pages.lastPosition(), count - 1);
        PageSearch search(pages, {{u"mot"}});
        EXPECT_EQ(search.position(), 0);
        EXPECT_EQ(positions(search).size(), std::size_t(std::max(count - 1, 0)));
        EXPECT_EQ(search.position(), std::max(count - 1, 0));
        EXPECT_FALSE(search.advance());
    }
}

TEST(PageSearch, goesOnBehindASourceThatCannotBeRead) {
    const std::u16string longOne(1500, u'x');
    Course course(withSources({u"", u"mot un", u"mot " + longOne, u"mot deux"}));
    constexpr std::uint8_t kLetters[] = {'x', 0, 'x', 0, 'x', 0};
    const auto letters = std::ranges::search(course.bytes, kLetters);
    ASSERT_FALSE(letters.empty());
    constexpr std::size_t kPage = 4096;
    const auto at = static_cast<std::size_t>(letters.begin() - course.bytes.begin());
    course.bytes[at / kPage * kPage] = 0x7F; // no page of data any more
    auto pages = opened(course);
    EXPECT_THAT(found(pages, u"mot"), ElementsAre(1, 3));
    EXPECT_EQ(pages.problems().count(), 1u);
    EXPECT_THAT(found(pages, u"mot"), ElementsAre(1, 3));
}

TEST(PageSearch, canBeLeftAndAnotherBegun) {
    std::vector<std::u16string> sources(3000, u"rien");
    sources[1] = sources[1500] = sources[2999] = u"mot";
    const Course course(withSources(sources));
    auto pages = opened(course);
    PageSearch left(pages, {{u"mot"}});
    EXPECT_TRUE(left.advance());
    EXPECT_LT(left.position(), pages.lastPosition());
    PageSearch other(pages, {{u"rien"}, false, true});
    EXPECT_TRUE(other.advance());
    EXPECT_TRUE(other.advance());
    EXPECT_THAT(found(pages, u"mot"), ElementsAre(1, 1500, 2999));
    EXPECT_THAT(positions(left), ElementsAre(1, 1500, 2999)); // where it was left
    EXPECT_EQ(positions(other).size(), 2996u);
}

TEST(PageSearch, keepsNoMoreThanItMay) {
    const Course course(withSources(std::vector<std::u16string>(1500, std::u16string(500, u'é'))));
    for (const std::size_t most : {std::size_t{0}, std::size_t{300'000}, kFoldedCopyBytes}) {
        auto pages = opened(course, most);
        for (const bool ignoreAccents : {false, true, true, false})
            EXPECT_EQ(found(pages, u"éé", true, ignoreAccents).size(), 1499u);
        EXPECT_LE(pages.copyBytes(), most);
        EXPECT_EQ(pages.copyBytes() > 0, most > 0);
    }
}

TEST(SearchablePages, tellsWhyItCannotBeOpened) {
    const auto none = SearchablePages::open(Course({}, u"autre").database());
    ASSERT_FALSE(none);
    EXPECT_THAT(none.error().sentence, HasSubstr("cours"));
}

} // namespace
} // namespace search
