#include "page/sign_faces.h"

#include <gtest/gtest.h>

using page::SignFace;

TEST(SignFaces, typedCharactersAreCodesAgain) {
    const struct {
        char16_t character;
        int code;
    } rows[] = {{u'l', 0x6C},      {u'¾', 0xBE}, {u'€', 0x80}, {u'Ÿ', 0x9F},
                {u'\uF06C', 0x6C}, {u'’', 0x92}, {u'λ', -1},   {u'\uF01F', -1}};
    for (const auto& row : rows)
        EXPECT_EQ(page::signCode(QChar(row.character)), row.code) << std::hex << +row.character;
}

TEST(SignFaces, codesBecomeUnicode) {
    EXPECT_EQ(page::readableSigns("Symbol", "l = 5 mm, DW"), QStringLiteral("λ = 5 μμ, ΔΩ"));
    EXPECT_EQ(page::readableSigns("symbol", QStringLiteral("a\u00F0b")), QStringLiteral("αβ"));
    EXPECT_EQ(page::readableSigns("Wingdings", QStringLiteral("ü")), QStringLiteral("✔"));
    EXPECT_EQ(page::readableSigns("Arial", "lD"), QStringLiteral("lD"));
}

TEST(SignFaces, theShapesOfPhiAreSwappedForDrawingOnly) {
    EXPECT_EQ(page::signCharacter(SignFace::Symbol, 0x66), U'\u03C6');
    EXPECT_EQ(page::drawnSignCharacter(SignFace::Symbol, 0x66), U'\u03D5');
    EXPECT_EQ(page::drawnSignCharacter(SignFace::Symbol, 0x6A), U'\u03C6');
    EXPECT_EQ(page::signCharacter(SignFace::Symbol, 256), 0u);
    EXPECT_EQ(page::signCharacter(SignFace::None, 0x66), 0u);
}
