#pragma once

#include "authoring/check/source.h"

#include <QStringView>

#include <optional>

namespace authoring::check {

/// Whether a directive has a form, and what follows its keyword is what that form reads.
bool isWellShaped(QStringView directive);

/// A number as directives read it, told in full: what the lenient reading made of it, and whether
/// nothing else stood there.
struct ReadNumber {
    double value = 0;
    bool isWhole = false; ///< the text is that number and nothing else
};
ReadNumber readNumber(QStringView text);

/// Whether the text is digits, with a sign before them and a point among them where these may be.
bool isNumeral(QStringView text, bool withSign, bool withPoint);

} // namespace authoring::check
