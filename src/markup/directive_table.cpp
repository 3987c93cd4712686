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
        {u"FEINC", Prefix, centrePenFor},
        {u"FONT", Prefix, fontFace},
        {u"RELIEF", Prefix, textShadow},
        {u"DECABAS", Prefix, shiftNextDownHalf},
        {u"DECABA2", Prefix, shiftNextDownQuarter},
        {u"DECABADEF", Prefix, movePenDownHalf},
        {u"DECAHAU", Prefix, shiftNextUpHalf},
        {u"DECAHA2", Prefix, shiftNextUpQuarter},
        {u"DECAHADEF", Prefix, movePenUpHalf},
        {u"DECAB2DEF", Prefix, movePenDownQuarter},
        {u"DECAH2DEF", Prefix, movePenUpQuarter},
        {u"DECLIG", Prefix, skipLines},
        {u"IJA", Prefix, symbolInLine},
        {u"IMA", Prefix, pictureOverText},
        {u"IXA", Prefix, pictureAboveText},
        {u"OBJ", Prefix, chooseSurface},
        {u"IHDEF", Prefix, pictureOfGivenSize},
        {u"POX", Prefix, setPenX},
        {u"PIX", Prefix, movePenX},
        {u"PIY", Prefix, movePenY},
        {u"INTER", Prefix, lineSpacing},
        {u"LIER1", Prefix, firstCaptionLine},
        {u"LIERT", Prefix, textLink},
        {u"LIERI", Prefix, pictureLink},
        {u"LIERX", Prefix, pictureLinkWithTooltip},
        {u"LIERF", Prefix, floatingMenu},
        {u"ADMEN", Prefix, menuEntry},
        {u"TITBAR", Prefix, windowCaption},
        {u"VIDEO", Prefix, pageVideo},
        {u"EXOOP", Prefix, optionField},
        {u"EXOCK", Prefix, checkField},
        {u"EXOTX", Prefix, textField},
        {u"EXOLI", Prefix, questionLink},
        {u"EXOVI", Prefix, questionVideo},
    };
    return kTable;
}

} // namespace markup
