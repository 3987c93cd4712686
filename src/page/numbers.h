#pragma once

#include "page/utf16.h"
#include "text/numeric_reader.h"

namespace page {

/// text::leadingNumber for Qt's texts.
inline double leadingNumber(QStringView input) {
    return text::leadingNumber(utf16(input));
}

} // namespace page
