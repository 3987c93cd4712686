#pragma once

#include "check/source.h"

#include <QStringView>

namespace check {

/// Whether a directive has a form, and what follows its keyword is what that form reads.
bool isWellShaped(QStringView directive);

/// Whether the text is digits, with a sign before them and a point among them where these may be.
bool isNumeral(QStringView text, bool withSign, bool withPoint);

} // namespace check
