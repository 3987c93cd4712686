#include "coursedata/picture_words.h"

#include "text/letters.h"
#include "text/utf8.h"

#include <algorithm>

namespace coursedata {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
/// Editors put the no-break space of French typography before a colon.
constexpr std::string_view kBlanks[] = {" ", "\t", "\r", "\u00A0", "\u202F"};

std::string_view trimmed(std::string_view text) {
    const auto strip = [&](auto holds, auto remove) {
        return std::any_of(std::begin(kBlanks), std::end(kBlanks), [&](std::string_view blank) {
            if (!holds(blank))
                return false;
            remove(blank.size());
            return true;
        });
    };
    while (strip([&](std::string_view blank) { return text.starts_with(blank); },
                 [&](std::size_t size) { text.remove_prefix(size); })) {
    }
    while (strip([&](std::string_view blank) { return text.ends_with(blank); },
                 [&](std::size_t size) { text.remove_suffix(size); })) {
    }
    return text;
}

std::u16string key(std::string_view picture) {
    std::u16string name = text::toUtf16(picture);
    std::transform(name.begin(), name.end(), name.begin(), text::lowerCase);
    return name;
}

} // namespace

PictureWords::PictureWords(std::string_view file) {
    if (file.starts_with(kByteOrderMark))
        file.remove_prefix(kByteOrderMark.size());
    while (!file.empty()) {
        const std::string_view line = file.substr(0, file.find('\n'));
        file.remove_prefix(std::min(line.size() + 1, file.size()));
        const std::size_t colon = line.find(':');
        if (!line.starts_with('#') && colon != line.npos)
            add(trimmed(line.substr(0, colon)), trimmed(line.substr(colon + 1)));
    }
}

void PictureWords::add(std::string_view picture, std::string_view words) {
    if (!picture.empty() && !words.empty())
        words_.try_emplace(key(picture), words);
}

std::string_view PictureWords::of(std::string_view picture) const {
    const auto found = words_.find(key(picture));
    return found == words_.end() ? std::string_view() : std::string_view(found->second);
}

std::string pictureWordsLine(std::string_view picture, std::string_view words) {
    return std::string(picture).append(" : ").append(words).append("\n");
}

} // namespace coursedata
