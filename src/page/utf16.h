#pragma once

#include <QStringView>

#include <string_view>

namespace page {

/// Qt's text as the logic takes it; of use as long as the text is there and unchanged.
inline std::u16string_view utf16(QStringView text) {
    return {text.utf16(), static_cast<std::size_t>(text.size())};
}

} // namespace page
