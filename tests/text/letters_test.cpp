#include "text/letters.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace text {
namespace {

std::u16string mapped(std::u16string_view from, char16_t (*letter)(char16_t)) {
    std::u16string to(from);
    for (char16_t& c : to)
        c = letter(c);
    return to;
}

TEST(Letters, losesItsAccentAndNothingElse) {
    EXPECT_EQ(mapped(u"Élève à Noël, ça où", withoutAccent), u"Eleve a Noel, ca ou");
    EXPECT_EQ(mapped(u"œuvre Ægir Øst łódź ×÷", withoutAccent), u"œuvre Ægir Øst łodz ×÷");
    EXPECT_EQ(mapped(u"ÀÿĀŽžſ", withoutAccent), u"AyAZzſ");
    EXPECT_EQ(mapped(u"Άώ λ Ω €∆", withoutAccent), u"Αω λ Ω €∆");
}

TEST(Letters, becomesSmallOneForOne) {
    EXPECT_EQ(mapped(u"ÀÉŒŸ ΆΣΩ×", lowerCase), u"àéœÿ άσω×");
}

TEST(Letters, standsForWhatPagesAreTypesetWith) {
    EXPECT_EQ(mapped(u"l\u2019axe\u00A0: \u22123\u202F\u03BCm\u2011«", keyboardForm),
              u"l'axe : -3 \u00B5m-«");
}

} // namespace
} // namespace text
