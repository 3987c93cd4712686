#include "text/utf8.h"
#include "text/windows_1252.h"

#include <gtest/gtest.h>

namespace {

TEST(Utf8, knowsWhatIsACharacter) {
    const std::pair<std::string_view, std::size_t> rows[] = {
        {"a", 1},
        {"\x7F", 1},
        {"é", 2},
        {"€", 3},
        {"\xF0\x9F\x98\x80", 4},
        {"\xF4\x8F\xBF\xBF", 4},
        {"\xE0\xA0\x80", 3},     // the first of three bytes
        {"\xF0\x90\x80\x80", 4}, // of four
        {"\xEE\x80\x80", 3},     // behind the halves of pairs
        // No UTF-8:
        {"\x80", 0},
        {"\xC0\xAF", 0}, // longer than they must be
        {"\xC1\xBF", 0},
        {"\xE0\x9F\xBF", 0},
        {"\xF0\x8F\xBF\xBF", 0},
        {"\xED\xA0\x80", 0},     // half of a pair
        {"\xF4\x90\x80\x80", 0}, // beyond the last one
        {"\xF5\x80\x80\x80", 0},
        {"\xFF", 0},
        {"\xC3", 0}, // cut short
        {"\xE2\x82", 0},
        {"\xE2\x82z", 0},
    };
    for (const auto& [bytes, length] : rows)
        EXPECT_EQ(text::utf8CharacterLength(bytes), length) << testing::PrintToString(bytes);
}

TEST(Utf8, comesBackAndDamageIsReplaced) {
    const std::string text = "aé€😀\u0800\uFFFF";
    EXPECT_EQ(text::toUtf8(text::toUtf16(text)), text);
    EXPECT_EQ(text::toUtf8(u"a\xD83D"), "a\uFFFD") << "unpaired";
    EXPECT_EQ(text::toUtf16("a\xC3"), u"a\uFFFD");
    EXPECT_EQ(text::toUtf16("\xC0\x80"), u"\uFFFD\uFFFD") << "overlong";
    EXPECT_EQ(text::toUtf16("\xED\xA0\x80"), u"\uFFFD\uFFFD\uFFFD") << "surrogate";
    EXPECT_EQ(text::toUtf16("\xF4\x90\x80\x80").front(), u'\uFFFD') << "beyond U+10FFFF";
}

TEST(Windows1252, givesEachCodeBackButTheFiveLeftOpen) {
    std::string open;
    for (int code = 0; code < 256; ++code) {
        const auto character = text::fromWindows1252(static_cast<std::uint8_t>(code));
        if (character)
            EXPECT_EQ(text::toWindows1252(*character), code);
        else
            open += static_cast<char>(code);
    }
    EXPECT_EQ(open, "\x81\x8D\x8F\x90\x9D");
    EXPECT_EQ(text::fromWindows1252(0x80), u'€');
    EXPECT_EQ(text::fromWindows1252(0x9F), u'Ÿ');
    EXPECT_EQ(text::toWindows1252(u'é'), 0xE9);
    for (const char16_t none : {u'\x80', u'\x81', u'Ā', u'漢'})
        EXPECT_EQ(text::toWindows1252(none), std::nullopt);
}

TEST(PlainLine, leavesNothingThatSteersATerminal) {
    EXPECT_EQ(text::plainLine("L’été, 20\u00A0°C « œuf » \U0001D11E"),
              "L’été, 20\u00A0°C « œuf » \U0001D11E");
    EXPECT_EQ(text::plainLine("a\x1B[31mb\rc\nd\te\x7F"
                              "f\xC2\x9Bg\xC2\x80"),
              "a�[31mb�c�d�e�f�g�");
    EXPECT_EQ(text::plainLine("a\u202Eb\u2066c\u2028d\u200Fe"), "a�b�c�d�e");
    EXPECT_EQ(text::plainLine("a\xE9\xC2"), "a��");
    EXPECT_EQ(text::plainLines("{\"a\":\t1}\n\x1B]0;x\x07\xC2\x9F\n"), "{\"a\":\t1}\n�]0;x��\n");
}

} // namespace
