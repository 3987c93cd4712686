#pragma once

#include "authoring/inline_text.h"

namespace authoring {

/// The habits of French printing, over all styles of a text: apostrophes and points of suspension
/// become typographic; runs of blanks become one, without any at the ends; blanks before "; : ! ?
/// » %", after "«", inside numbers, between a number and its unit and before an operator become
/// no-break spaces, one after an operator breaks only where it must, and « » get theirs where there
/// is none. Other signs stay as typed.
void composeFrench(InlineText& text);

} // namespace authoring
