#include "markup/directive_table.h"

#include "markup/directives.h"

#include <array>
#include <vector>

namespace markup {

std::span<const Directive> directiveTable() {
    using enum Match;
    using enum Argument;
    using enum Use;
    static constexpr Directive kTable[] = {
        {u"SI", Prefix, fontSize, Number, kFontSize},
        {u"BOL1", Prefix, boldOn},
        {u"BOL0", Prefix, boldOff},
        {u"ITA1", Prefix, italicOn},
        {u"ITA0", Prefix, italicOff},
        {u"UND1", Prefix, underlineOn},
        {u"UND0", Prefix, underlineOff},
        {u"ALGA", Prefix, alignLeft},
        {u"ALCE", Prefix, alignCentre},
        {u"ALDR", Prefix, alignRight},
        {u"PLOUF", Whole, refreshAndGrow},
        // Any directive that begins with "C" comes by here too, "CHAPEAU" among them: it turns the
        // ink black, as pages that use it expect.
        {u"C", Prefix, inkColour, Number, kInkNumber},
        {u"TCH", Prefix, topBorderColour, Number, kPaletteNumber},
        {u"TCB", Prefix, bottomBorderColour, Number, kPaletteNumber},
        {u"TCG", Prefix, leftBorderColour, Number, kPaletteNumber},
        {u"TCI", Prefix, innerBorderColour, Number, kPaletteNumber},
        {u"TCD", Prefix, rightBorderColour, Number, kPaletteNumber},
        {u"TAB", Prefix, openCell, Cell},
        {u"FEINC", Prefix, centrePenFor, Text},
        {u"FONT", Prefix, fontFace, Number, kFaceNumber},
        {u"RELIEF", Prefix, textShadow, Shadow},
        {u"SQD", Prefix, beginRoot},
        {u"DGFOND", Prefix, backgroundGradient, Number, kTintStyle},
        {u"SQF", Prefix, endRoot, Factor},
        {u"VA1", Prefix, barLow, Text},
        {u"VA2", Prefix, barHigh, Text},
        {u"VE1", Prefix, vectorLow, Text},
        {u"VE2", Prefix, vectorHigh, Text},
        {u"IND", Prefix, printIndex, Text},
        {u"EXP", Prefix, printExponent, Text},
        {u"POLY", Prefix, printStacked, Signs},
        {u"CHAPEAU", Whole, printHat},
        {u"POINT", Whole, printPoint},
        {u"FLECHE", Whole, printArrow},
        {u"DECABAS", Prefix, shiftNextDownHalf},
        {u"DECABA2", Prefix, shiftNextDownQuarter},
        {u"DECABADEF", Prefix, movePenDownHalf},
        {u"DECAHAU", Prefix, shiftNextUpHalf},
        {u"DECAHA2", Prefix, shiftNextUpQuarter},
        {u"DECAHADEF", Prefix, movePenUpHalf},
        {u"DECAB2DEF", Prefix, movePenDownQuarter},
        {u"DECAH2DEF", Prefix, movePenUpQuarter},
        {u"DECLIG", Prefix, skipLines, Factor},
        {u"FINTAB", Prefix, closeRowWithBorders},
        {u"FINTAC", Prefix, closeRowWithFill, Number, kFillStyle},
        {u"FINITAB", Prefix, closeRowWithoutBorders},
        {u"FTABRET", Prefix, closeRowAndReturn},
        {u"IJA", Prefix, symbolInLine, Key},
        {u"IMA", Prefix, pictureOverText, File},
        {u"IXA", Prefix, pictureAboveText, File},
        {u"OBJ", Prefix, chooseSurface, Surface},
        {u"IHDEF", Prefix, pictureOfGivenSize, SizedFile},
        {u"POX", Prefix, setPenX, Number, kPlacePx},
        {u"PIX", Prefix, movePenX, Number, kPlacePx},
        {u"PIY", Prefix, movePenY, Number, kPlacePx},
        {u"LARGEUR", Prefix, frameWidth, Number, kLengthPx},
        {u"RECT", Prefix, drawFrame, Number, kLengthPx},
        {u"FRAC", Prefix, printFraction, Halves},
        {u"INTER", Prefix, lineSpacing, Number, kLineFactor},
        {u"NUMERATEUR", Prefix, beginNumerator},
        {u"DENOMINATEUR", Prefix, beginDenominator},
        {u"FINFRAC", Prefix, endFraction},
        {u"STAY", Whole, stay},
        {u"K001", Whole, openingBracket},
        {u"K002", Whole, openingBrace},
        {u"K003", Whole, openingParenthesis},
        {u"K004", Whole, equilibriumArrow},
        {u"K101", Whole, closingBracket},
        {u"K102", Whole, closingBrace},
        {u"K103", Whole, closingParenthesis},
        {u"K104", Whole, reactionArrow},
        {u"LIER1", Prefix, firstCaptionLine, Text, {}, Pages},
        {u"LIERT", Prefix, textLink, Link, {}, Pages},
        {u"LIERI", Prefix, pictureLink, KeyedLink, {}, Pages},
        {u"LIERX", Prefix, pictureLinkWithTooltip, TippedLink, {}, Pages},
        {u"LIERF", Prefix, floatingMenu, Key, {}, Pages},
        {u"ADMEN", Prefix, menuEntry, Link, {}, Pages},
        {u"TITBAR", Prefix, windowCaption, Text, {}, Pages},
        {u"VIDEO", Prefix, pageVideo, File, {}, Pages},
        {u"EXOOP", Prefix, optionField, None, {}, Questions},
        {u"EXOCK", Prefix, checkField, None, {}, Questions},
        {u"EXOTX", Prefix, textField, None, {}, Questions},
        {u"EXOLI", Prefix, questionLink, PageLink, {}, Questions},
        {u"EXOVI", Prefix, questionVideo, PageLink, {}, Questions},
    };
    return kTable;
}

std::span<const Directive* const> directivesFrom(QChar first) {
    // A page asks for every line; keywords are ASCII.
    static const auto kRows = [] {
        std::array<std::vector<const Directive*>, 128> rows;
        for (const Directive& row : directiveTable())
            rows.at(row.keyword.front().unicode()).push_back(&row);
        return rows;
    }();
    return first.unicode() < kRows.size() ? kRows[first.unicode()]
                                          : std::span<const Directive* const>();
}

} // namespace markup
