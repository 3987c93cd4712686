#include "coursetool/front_matter_edit.h"

#include "coursetool/source_text.h"

#include <algorithm>

namespace coursetool {

namespace {

constexpr std::string_view kBlanks = " \t";

std::string_view withoutEnd(std::string_view line) {
    while (line.ends_with('\n') || line.ends_with('\r'))
        line.remove_suffix(1);
    return line;
}

/// A byte order mark may stand before the first one.
bool isFence(std::string_view line) {
    line = withoutEnd(line);
    if (line.starts_with(kByteOrderMark))
        line.remove_prefix(kByteOrderMark.size());
    return line == kFence;
}

/// Where the value starts in "name = value"; npos in another line.
std::size_t valueIn(std::string_view line, std::string_view name) {
    const std::size_t start = line.find_first_not_of(kBlanks);
    if (start == std::string_view::npos || !line.substr(start).starts_with(name))
        return std::string_view::npos;
    const std::size_t sign = line.find_first_not_of(kBlanks, start + name.size());
    if (sign == std::string_view::npos || line[sign] != '=')
        return std::string_view::npos;
    const std::size_t value = line.find_first_not_of(kBlanks, sign + 1);
    return value == std::string_view::npos ? line.size() : value;
}

/// The line with another value. Numbers and flags hold no "#", so one begins a comment.
std::string changed(std::string_view line, std::size_t value, std::string_view to) {
    const std::string_view text = withoutEnd(line);
    const std::size_t comment = std::min(text.find('#', value), text.size());
    std::size_t end = comment;
    while (end > value && kBlanks.find(text[end - 1]) != std::string_view::npos)
        --end;
    return std::string(line.substr(0, value)).append(to).append(line.substr(end));
}

} // namespace

std::string withField(std::string_view source, std::string_view name, std::string_view value) {
    std::string result;
    int fences = 0;
    std::string_view lineEnd = "\n";
    while (!source.empty()) {
        const std::size_t length = std::min(source.find('\n'), source.size() - 1) + 1;
        const std::string_view line = source.substr(0, length);
        if (line.ends_with("\r\n"))
            lineEnd = "\r\n";
        if (isFence(line) && ++fences == 2)
            break;
        if (const std::size_t at = valueIn(line, name); at != std::string_view::npos)
            return result.append(changed(line, at, value)).append(source.substr(length));
        result.append(line);
        source.remove_prefix(length);
    }
    if (!result.empty() && !result.ends_with('\n'))
        result.append(lineEnd);
    return result.append(name).append(" = ").append(value).append(lineEnd).append(source);
}

} // namespace coursetool
