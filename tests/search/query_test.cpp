#include "search/query.h"

#include <gtest/gtest.h>

namespace search {
namespace {

using Words = std::vector<std::u16string>;

TEST(Query, isSplitIntoItsWords) {
    const struct {
        const char16_t* typed;
        Words words;
    } rows[] = {
        {u"", {}},
        {u"  ", {}},
        {u"a", {}},
        {u"  a  ", {}},         // the outer spaces do not count
        {u"+a", {}},            // nor do signs, once they are spaces
        {u"?!", {}},            //
        {u"+-*/,;:.?#", {}},    //
        {u"aé", {u"aé"}},       // two characters suffice
        {u"a b", {u"a", u"b"}}, // of which a space may be one, between others
        {u"a+", {}},            //
        {u"Lumière;ŒIL", {u"lumière", u"œil"}},
        {u" un  DEUX   un ", {u"un", u"deux", u"un"}},
        {u"a+b-c*d/e,f;g:h.i?j#k",
         {u"a", u"b", u"c", u"d", u"e", u"f", u"g", u"h", u"i", u"j", u"k"}},
        {u"##SI14", {u"si14"}},
        {u"l’eau (pure) = 100%", {u"l’eau", u"(pure)", u"=", u"100%"}}, // other signs stay
        {u"\tab", {u"\tab"}},                                           // a tab is no space
        {u"\U0001F600", {u"\U0001F600"}},                               // two units
    };
    for (const auto& [typed, words] : rows)
        EXPECT_EQ(queryWords(typed), words) << testing::PrintToString(std::u16string(typed));
}

} // namespace
} // namespace search
