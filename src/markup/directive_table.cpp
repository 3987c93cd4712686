#include "markup/directive_table.h"

#include "markup/directives.h"

namespace markup {

std::span<const Directive> directiveTable() {
    using enum Match;
    static constexpr Directive kTable[] = {
        {u"SI", Prefix, fontSize},
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
        {u"C", Prefix, inkColour},
        {u"TCH", Prefix, topBorderColour},
        {u"TCB", Prefix, bottomBorderColour},
        {u"TCG", Prefix, leftBorderColour},
        {u"TCI", Prefix, innerBorderColour},
        {u"TCD", Prefix, rightBorderColour},
        {u"TAB", Prefix, openCell},
        {u"FEINC", Prefix, centrePenFor},
        {u"FONT", Prefix, fontFace},
        {u"RELIEF", Prefix, textShadow},
        {u"SQD", Prefix, beginRoot},
        {u"DGFOND", Prefix, backgroundGradient},
        {u"SQF", Prefix, endRoot},
        {u"VA1", Prefix, barLow},
        {u"VA2", Prefix, barHigh},
        {u"VE1", Prefix, vectorLow},
        {u"VE2", Prefix, vectorHigh},
        {u"IND", Prefix, printIndex},
        {u"EXP", Prefix, printExponent},
        {u"POLY", Prefix, printStacked},
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
        {u"DECLIG", Prefix, skipLines},
        {u"FINTAB", Prefix, closeRowWithBorders},
        {u"FINTAC", Prefix, closeRowWithFill},
        {u"FINITAB", Prefix, closeRowWithoutBorders},
        {u"FTABRET", Prefix, closeRowAndReturn},
        {u"OBJ", Prefix, chooseSurface},
        {u"POX", Prefix, setPenX},
        {u"PIX", Prefix, movePenX},
        {u"PIY", Prefix, movePenY},
        {u"LARGEUR", Prefix, frameWidth},
        {u"RECT", Prefix, drawFrame},
        {u"FRAC", Prefix, printFraction},
        {u"INTER", Prefix, lineSpacing},
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
        {u"TITBAR", Prefix, windowCaption},
    };
    return kTable;
}

} // namespace markup
