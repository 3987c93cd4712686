#pragma once

#include "exercises/exo_case.h"

namespace exercises::test {

/// Three boxes, the first and last to be ticked; a blank line separates the comment.
inline constexpr char16_t kBoxes[] =
    u"##SI12\r\nCochez.¶\r\n"
    u"##PIX048\r\n##EXOCK\r\nle verre¶\r\n##PIY010\r\n"
    u"##PIX048\r\n##EXOCK\r\nH\r\n##IND2\r\nO liquide¶\r\n##PIY010\r\n"
    u"##PIX048\r\n##EXOCK\r\nl’air¶\r\n";
inline constexpr char16_t kOptions[] = u"##SI12\r\n##PIX048\r\n##EXOOP\r\noui¶\r\n##PIY010\r\n"
                                       u"##PIX048\r\n##EXOOP\r\nnon¶\r\n";
inline constexpr char16_t kTyped[] = u"##SI12\r\nUnité : \r\n##EXOTX\r\n.¶\r\n";
inline constexpr char16_t kComment[] =
    u"##PIY010\r\nRelisez.¶\r\n##EXOLIRevoir la page#12\r\n¶\r\n";

class Test : public ExoCase {
protected:
    void SetUp() override {
        write({description(3, u"Les milieux", number(4))},
              {question(301, 1, u"10100", kBoxes, kComment),
               question(302, 2, u"01000", kOptions, kComment),
               question(303, 3, u"ohm", kTyped, kComment),
               question(304, 1, u"00000", kBoxes, kComment)});
    }

    void openAt(std::int16_t question) {
        state.CurrentQuestion = question;
        openWindow();
    }
};

} // namespace exercises::test
