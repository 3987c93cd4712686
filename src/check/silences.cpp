#include "check/silences.h"

#include "check/rule.h"
#include "coursetool/file_list.h"
#include "coursetool/front_matter.h"
#include "coursetool/paths.h"
#include "coursetool/source_text.h"
#include "text/utf8.h"

#include <algorithm>

namespace check {

namespace {

constexpr std::string_view kMark = "check:";
constexpr std::string_view kVerb = "ignore";
constexpr std::string_view kBetween = " ,\t";

/// A capital letter and three digits.
bool isCode(std::string_view word) {
    return word.size() == 4 && word[0] >= 'A' && word[0] <= 'Z' &&
           std::all_of(word.begin() + 1, word.end(), [](char c) { return c >= '0' && c <= '9'; });
}

std::string_view withoutBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kBetween);
    return first == text.npos ? std::string_view() : text.substr(first);
}

/// What follows `word` at the start of a text, blanks left aside; nothing when it is not there.
std::optional<std::string_view> after(std::string_view text, std::string_view word) {
    text = withoutBlanks(text);
    return text.starts_with(word) ? std::optional(text.substr(word.size())) : std::nullopt;
}

} // namespace

std::set<std::string> readCodes(std::string_view words, const coursetool::Place& place,
                                coursetool::Report& report) {
    std::set<std::string> codes;
    for (words = withoutBlanks(words); !words.empty(); words = withoutBlanks(words)) {
        const std::string_view word = words.substr(0, words.find_first_of(kBetween));
        if (!isCode(word))
            break;
        if (!findRule(word))
            report.warning(place, "aucune règle ne porte le code " + coursetool::inQuotes(word));
        codes.emplace(word);
        words.remove_prefix(word.size());
    }
    return codes;
}

std::set<std::string> ignoredIn(std::string_view frontMatter, int firstLine,
                                const std::string& file, coursetool::Report& report) {
    std::set<std::string> codes;
    for (int line = firstLine; !frontMatter.empty(); ++line) {
        const std::size_t end = std::min(frontMatter.find('\n'), frontMatter.size());
        const auto comment = after(frontMatter.substr(0, end), "#");
        const auto order = comment ? after(*comment, kMark) : std::nullopt;
        if (const auto list = order ? after(*order, kVerb) : std::nullopt)
            codes.merge(readCodes(*list, {file, line, 1}, report));
        frontMatter.remove_prefix(std::min(end + 1, frontMatter.size()));
    }
    return codes;
}

std::set<std::string> ignoredInCourse(const std::filesystem::path& directory,
                                      coursetool::Report& report) {
    static constexpr coursetool::FieldRule kFields[] = {
        {"ignore", jet::ColumnType::Text, false, "\"L103 R301\""}};
    std::error_code error;
    const std::filesystem::directory_entry file(directory / kSettingsFile, error);
    if (!file.exists(error) || !coursetool::isFileOf(directory, file, report))
        return {};
    const auto text = coursetool::readSource(file.path(), report);
    if (!text)
        return {};
    const std::string name = coursetool::shown(file.path());
    const coursetool::Fields fields = coursetool::readFields(*text, 1, name, kFields, report);
    const std::u16string* codes = fields.values.front().text();
    return codes ? readCodes(text::toUtf8(*codes), fields.places.front(), report)
                 : std::set<std::string>();
}

} // namespace check
