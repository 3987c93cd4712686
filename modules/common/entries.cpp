#include "common/entries.h"

#include "common/words.h"

namespace common {

namespace {

constexpr char16_t kByteOrderMark = 0xFEFF;

} // namespace

std::optional<std::vector<Entry>> parseEntries(std::u16string_view text) {
    std::vector<Entry> entries;
    if (!text.empty() && text.front() == kByteOrderMark)
        text.remove_prefix(1);
    for (int number = 1; !text.empty(); ++number) {
        const std::size_t end = std::min(text.find(u'\n'), text.size());
        const std::u16string_view line = trimmed(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.empty() || line.front() == u'#')
            continue;
        const std::size_t sign = line.find(u'=');
        if (sign == 0 || sign == line.npos)
            return std::nullopt;
        entries.push_back({std::u16string(trimmed(line.substr(0, sign))),
                           std::u16string(trimmed(line.substr(sign + 1))), number});
    }
    return entries;
}

} // namespace common
