#include "page/faces/font_book.h"

#include <QFontMetricsF>
#include <QPainterPath>

#include <gtest/gtest.h>

namespace {

page::Font font(const char16_t* face, double points) {
    page::Font font;
    font.face = QString::fromUtf16(face);
    font.points = points;
    return font;
}

TEST(FontBook, facesAreInstalled) {
    EXPECT_EQ(page::FontBook::missingFamilies(), QStringList());
}

TEST(FontBook, lineHeightsAreThoseOfTheFacesAskedFor) {
    // Pixels at 96 to the inch, as the system the pages were written for gives them.
    const struct {
        double points;
        int sans;
        int serif;
    } rows[] = {{6, 9, 9},      {8, 12, 12},  {10, 15, 15}, {11, 17, 16}, {12, 17, 17},
                {13.5, 20, 20}, {14, 21, 21}, {20, 30, 30}, {28, 41, 41}, {36, 53, 53}};
    const page::FontBook fonts;
    for (const auto& row : rows) {
        EXPECT_EQ(fonts.height(font(u"Arial", row.points)), row.sans * 15) << row.points;
        EXPECT_EQ(fonts.height(font(u"Times new roman", row.points)), row.serif * 15) << row.points;
    }
}

TEST(FontBook, widthsAreTheUnhintedOnesWithoutKerning) {
    const page::FontBook fonts;
    QFont reference(QStringLiteral("Liberation Sans"));
    reference.setPixelSize(16 * 15);
    reference.setHintingPreference(QFont::PreferNoHinting);
    reference.setKerning(false);
    const QFontMetricsF metrics(reference);
    for (const QString& text : {QStringLiteral("Un rayon lumineux change de direction"),
                                QStringLiteral("AVATAR To."), QStringLiteral("é œ « »")})
        EXPECT_NEAR(fonts.width(font(u"Arial", 12), text), metrics.horizontalAdvance(text), .5);
}

TEST(FontBook, widthsAddUp) {
    const page::FontBook fonts;
    const auto sans = font(u"Arial", 12);
    const double parts = fonts.width(sans, u"fin ") + fonts.width(sans, u"de ligne");
    EXPECT_DOUBLE_EQ(fonts.width(sans, u"fin de ligne"), parts);
    EXPECT_EQ(fonts.width(sans, u""), 0);
    EXPECT_EQ(fonts.width(font(u"Arial", 0), u"rien"), 0);
    EXPECT_EQ(fonts.height(font(u"Arial", 0)), 0);
}

TEST(FontBook, drawsNoBoxesForWhatOnlyProgramsRead) {
    const page::FontBook fonts;
    const auto sans = font(u"Arial", 12);
    for (const char16_t hidden : u"\u0001\u001F\u007F\u0085\u200E\uFEFF") {
        const QString text = QString(u'a') + QChar(hidden) + u'b';
        EXPECT_EQ(fonts.glyphs(sans, text).size(), 2u) << int(hidden);
        EXPECT_EQ(fonts.width(sans, text), fonts.width(sans, u"ab")) << int(hidden);
    }
    for (const QChar blank : QStringLiteral("\t\n\r\f")) {
        const auto glyphs = fonts.glyphs(sans, QString(u'a') + blank + u'b');
        ASSERT_EQ(glyphs.size(), 3u);
        EXPECT_EQ(glyphs[1].character, U' ');
        EXPECT_EQ(glyphs[2].offset, fonts.width(sans, u"a "));
    }
    EXPECT_EQ(fonts.width(sans, u"\u00AD"), fonts.width(sans, u"-")) << "a soft hyphen";
}

TEST(FontBook, symbolCodesShowGreek) {
    const page::FontBook fonts;
    const auto symbol = font(u"SYMBOL", 12);
    const auto runs = fonts.place(symbol, u"lW");
    ASSERT_EQ(runs.size(), 1u);
    EXPECT_FALSE(runs[0].glyphs.contains(0u)) << "a code without glyph";
    EXPECT_NE(runs[0].glyphs, fonts.place(font(u"Arial", 12), u"lW")[0].glyphs);
    // Codes without a sign show nothing and keep the position.
    EXPECT_EQ(fonts.width(symbol, u"l\u00F0W"), fonts.width(symbol, u"lW"));
    // Greek typed as Greek comes from a face that has it.
    ASSERT_EQ(fonts.place(symbol, u"λ").size(), 1u);
    EXPECT_FALSE(fonts.place(symbol, u"λ")[0].glyphs.contains(0u));
}

TEST(FontBook, charactersAFaceLacksComeFromAnother) {
    const page::FontBook fonts;
    const auto runs = fonts.place(font(u"Comic Sans MS", 12), u"aλb");
    ASSERT_EQ(runs.size(), 3u);
    EXPECT_EQ(runs[0].fallback, runs[2].fallback);
    EXPECT_NE(runs[0].fallback, runs[1].fallback);
    for (const char16_t* signs : {u"lnèüðJK", u"\u0080\u009F\u2022"}) {
        for (const auto& run : fonts.place(font(u"Wingdings", 12), signs))
            EXPECT_FALSE(run.glyphs.contains(0u));
    }
}

TEST(FontBook, glyphsTellTheirCharacterAndTheirFile) {
    const page::FontBook fonts;
    const struct {
        const char16_t* face;
        const char16_t* text;
        std::u32string shown;
    } rows[] = {{u"Arial", u"aé→", U"aé→"},
                {u"Symbol", u"lj\u00F0W", U"λϕΩ"},
                {u"Wingdings", u"l", U"●"},
                {u"Comic Sans MS", u"aλb", U"aλb"}};
    for (const auto& row : rows) {
        auto asked = font(row.face, 12);
        asked.bold = true;
        std::u32string shown;
        double last = -1;
        for (const auto& glyph : fonts.glyphs(asked, row.text)) {
            shown += glyph.character;
            EXPECT_GT(glyph.offset, last);
            last = glyph.offset;
            const auto& source = page::FontBook::faceSource(asked, glyph.fallback);
            EXPECT_TRUE(source.bold && !source.italic);
            const QRawFont file(source.file, 240);
            ASSERT_TRUE(file.isValid());
            const QRawFont drawn = fonts.deviceFont(asked, glyph.fallback, 240);
            EXPECT_EQ(file.fontTable("maxp"), drawn.fontTable("maxp"));
            EXPECT_EQ(file.pathForGlyph(glyph.index).elementCount(),
                      drawn.pathForGlyph(glyph.index).elementCount());
        }
        EXPECT_EQ(shown, row.shown);
    }
}

TEST(FontBook, loneSurrogatesAndManySizesDoNoHarm) {
    const page::FontBook fonts;
    const char16_t lone[] = {u'a', 0xD800, u'b', 0xDC00, 0};
    EXPECT_GT(fonts.width(font(u"Arial", 12), lone), 0);
    for (int i = 1; i < 600; ++i)
        EXPECT_GT(fonts.width(font(u"Arial", i), u"a"), 0);
}

} // namespace
