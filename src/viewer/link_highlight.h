#pragma once

#include "markup/drawn_page.h"

namespace viewer {

/// Shows every text link plain, except the one with index `kept`. Plain is neither bold nor
/// underlined: a link that its page wrote in bold is no longer bold once the pointer has passed,
/// and that is meant so.
void resetLinkHighlight(markup::LinkTable::Elements& Labelien, int kept);

/// Makes the text link under the pointer bold and underlined, and all others plain.
void highlightLink(markup::LinkTable::Elements& Labelien, int hovered);

} // namespace viewer
