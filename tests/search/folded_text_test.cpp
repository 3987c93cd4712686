#include "search/folded_text.h"
#include "text/letters.h"

#include <gtest/gtest.h>

#include <array>
#include <set>

namespace search {
namespace {

TEST(FoldedText, isTheSameManyUnitsTogetherAndOneByOne) {
    std::set<std::string> different;
    std::set<char16_t> small;
    for (unsigned c = 0; c <= 0xFFFF; ++c) {
        const auto unit = static_cast<char16_t>(c);
        std::array<std::uint8_t, 32> together;
        for (std::size_t i = 0; i < together.size(); ++i)
            together[i] = static_cast<std::uint8_t>(c >> (8 * (i % 2)));
        FoldedText many;
        many.wide(std::span<const std::uint8_t>(together));
        std::string expected;
        for (std::size_t i = 0; i < together.size() / 2; ++i)
            expected += foldedWord({&unit, 1}, false);
        ASSERT_EQ(many.bytes(), expected) << c;
        different.insert(foldedWord({&unit, 1}, false));
        small.insert(text::lowerCase(unit));
        const char16_t lower = text::lowerCase(unit);
        ASSERT_EQ(foldedWord({&lower, 1}, false), foldedWord({&unit, 1}, false)) << c;
    }
    EXPECT_EQ(different.size(), small.size()); // as many as there are letters to tell apart
}

} // namespace
} // namespace search
