#pragma once

#include "text/numeric_reader.h"

#include <QStringView>

namespace page {

/// text::leadingNumber for Qt's texts.
inline double leadingNumber(QStringView input) {
    return text::leadingNumber({input.utf16(), static_cast<std::size_t>(input.size())});
}

} // namespace page
