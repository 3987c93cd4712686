#include "jet/names.h"
#include "jet/text_codec.h"
#include "jet/utf16_text.h"

#include <gtest/gtest.h>

#include <random>

using jet::TextForm;

namespace {

using Stored = std::vector<std::uint8_t>;

std::u16string decoded(const Stored& bytes, TextForm form) {
    std::u16string text;
    jet::decodeText(bytes, form, text);
    return text;
}

std::u16string givenInPieces(const Stored& bytes, TextForm form) {
    Utf16Text sink;
    jet::decodeText(bytes, form, sink);
    return sink.text;
}

TEST(TextCodec, readsEveryForm) {
    const struct {
        const char* name;
        TextForm form;
        Stored bytes;
        std::u16string text;
    } rows[] = {
        {"nothing", TextForm::Compressible, {}, u""},
        {"plain", TextForm::Compressible, {'a', 0, 0xAC, 0x20}, u"a€"},
        {"byte left over", TextForm::Compressible, {'a', 0, 'b'}, u"a"},
        {"mark alone", TextForm::Compressible, {0xFF, 0xFE}, u""},
        {"compressed", TextForm::Compressible, {0xFF, 0xFE, 'a', 0xE9}, u"aé"},
        {"two modes", TextForm::Compressible, {0xFF, 0xFE, 'a', 0, 0xAC, 0x20, 0, 'b'}, u"a€b"},
        {"ends in plain mode", TextForm::Compressible, {0xFF, 0xFE, 0, 0xAC, 0x20}, u"€"},
        {"ends at a switch", TextForm::Compressible, {0xFF, 0xFE, 'a', 0}, u"a"},
        {"half a unit at the end", TextForm::Compressible, {0xFF, 0xFE, 'a', 0, 0xAC}, u"a"},
        {"0 as second byte of a unit",
         TextForm::Compressible,
         {0xFF, 0xFE, 0, 'a', 0, 0, 'b'},
         u"ab"},
        {"mark without meaning", TextForm::Utf16, {0xFF, 0xFE, 'a', 0}, u"\uFEFFa"},
        {"one byte a character",
         TextForm::Windows1252,
         {'a', 0xE9, 0x80, 0x9C, 0x81},
         u"aé€œ\uFFFD"}};
    for (const auto& row : rows) {
        EXPECT_EQ(decoded(row.bytes, row.form), row.text) << row.name;
        EXPECT_EQ(givenInPieces(row.bytes, row.form), row.text) << row.name;
    }
}

TEST(TextCodec, unpairedSurrogatesStay) {
    const Stored bytes{0x3D, 0xD8, 0x3D, 0xD8, 0x00, 0xDE, 'x', 0, 0x00, 0xDE, 0x3D, 0xD8};
    EXPECT_EQ(decoded(bytes, TextForm::Utf16), u"\xD83D\xD83D\xDE00x\xDE00\xD83D");
}

/// Texts of all mixes and lengths come back, and both ways of reading them agree.
TEST(TextCodec, writesWhatItReads) {
    const std::u16string_view kinds[] = {
        u"abcdef",       u"éàçœ€",   u"\u0080\u07FF\u0800",         u"Ω漢ж",
        u"\xD83D\xDE00", u"\u0100a", std::u16string_view(u"\0b", 2)};
    std::mt19937 random(7);
    for (int i = 0; i < 3000; ++i) {
        std::u16string text;
        const std::size_t length = random() % 1100;
        while (text.size() < length)
            text += kinds[random() % (i % 2 == 0 ? 4 : 7)].substr(0, 1 + random() % 3);
        const auto stored = jet::encodeText(text, i % 3 != 0);
        ASSERT_TRUE(stored);
        ASSERT_EQ(decoded(*stored, TextForm::Compressible), text);
        ASSERT_EQ(givenInPieces(*stored, TextForm::Compressible), text);
        ASSERT_LE(stored->size(), 2 * text.size());
    }
}

TEST(TextCodec, compressesOnlyWhatEveryReaderUnderstands) {
    const auto isCompressed = [](std::u16string_view text) {
        return jet::encodeText(text, true)->size() < 2 * text.size();
    };
    EXPECT_FALSE(isCompressed(u"ab"));
    EXPECT_TRUE(isCompressed(u"abc"));
    EXPECT_TRUE(isCompressed(std::u16string(1024, u'a')));
    EXPECT_FALSE(isCompressed(std::u16string(1025, u'a')));
    EXPECT_FALSE(isCompressed(u"abcdefgh\u0100"));
    EXPECT_FALSE(isCompressed(std::u16string_view(u"abcdefgh\0", 9)));
    EXPECT_FALSE(isCompressed(u"漢字漢字漢字"));
    EXPECT_EQ(jet::encodeText(u"\uFEFFa", false), std::nullopt);
}

TEST(Names, compareWithoutCase) {
    EXPECT_TRUE(jet::sameName(u"Numéropage", u"NUMÉROPAGE"));
    EXPECT_TRUE(jet::sameName(u"ŒUVRE Ÿ ž", u"œuvre ÿ Ž"));
    EXPECT_TRUE(jet::sameName(u"ΔΩ", u"δω"));
    EXPECT_FALSE(jet::sameName(u"a×", u"a÷"));
    EXPECT_FALSE(jet::sameName(u"page", u"pages"));
}

} // namespace
