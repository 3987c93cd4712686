#pragma once

#include "page/font.h"

namespace authoring {

/// Numbers of "C" directives, by what the house uses them for.
enum { kBlackInk = 0, kTitleInk = 1, kLinkInk = 2, kTermInk = 8, kRuleInk = 10 };

/// Numbers of "FONT" directives.
enum Face { kArial = 0, kTimes = 2 };

/// How a stretch of text is printed.
struct Style {
    int points = 12;
    bool bold = false;
    bool italic = false;
    int ink = kBlackInk;
    int face = kArial;
    int link = -1; ///< index into the links of the text; -1 for text that leads nowhere

    bool operator==(const Style&) const = default;
};

/// The font that a style prints with.
page::Font fontOf(const Style& style);

} // namespace authoring
