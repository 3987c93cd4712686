#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace common {

/// What the modules say without Qt, as their windows show it.
inline QString qtText(std::u16string_view text) {
    return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::u16string_view utf16(QStringView text) {
    return {text.utf16(), static_cast<std::size_t>(text.size())};
}

} // namespace common
