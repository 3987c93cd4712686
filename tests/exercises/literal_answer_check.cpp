#include "exercises/literal_answer_check.h"

#include "exercises/letters.h"

#include <map>

namespace exercises::test {

namespace {

std::u16string lower(std::u16string text) {
    for (char16_t& c : text)
        c = lowerCase(c);
    return text;
}

bool find(const std::u16string& text, const std::u16string& word) {
    for (std::size_t at = text.find(word); at != text.npos; at = text.find(word, at + 1)) {
        const std::size_t end = at + word.size();
        if ((at == 0 || !isWordCharacter(text[at - 1])) &&
            (end == text.size() || !isWordCharacter(text[end])))
            return true;
    }
    return false;
}

} // namespace

std::u16string foldLiterally(std::u16string_view typed) {
    static const std::map<std::u16string, std::u16string> table = {
        {u"é", u"e"}, {u"è", u"e"}, {u"ê", u"e"}, {u"à", u"a"}, {u"ù", u"u"},
        {u"ô", u"o"}, {u"-", u""},  {u"_", u""},  {u"+", u" "}, {u"*", u" "},
        {u"/", u" "}, {u"'", u" "}, {u",", u" "}, {u";", u" "}, {u".", u" "},
        {u"!", u" "}, {u"?", u" "}, {u":", u" "}, {u"ç", u"c"}};
    std::u16string buffer = lower(std::u16string(typed));
    const std::size_t n = buffer.size();
    for (std::size_t i = 0; i <= n; ++i) {
        const auto rule = i < buffer.size() ? table.find(buffer.substr(i, 1)) : table.end();
        if (rule != table.end())
            buffer.replace(i, 1, rule->second);
    }
    return buffer;
}

bool checkLiterally(std::u16string_view solution, std::u16string_view typed) {
    const std::u16string buffer = foldLiterally(typed);
    for (const char16_t* ending : {u"", u"S", u"E", u"ES", u"X"})
        if (find(buffer, lower(std::u16string(solution) + ending)))
            return true;
    return false;
}

} // namespace exercises::test
