#include "exercises/answer_check.h"

#include "text/letters.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace exercises {

namespace {

constexpr std::u16string_view kDeleted = u"-_";
constexpr std::u16string_view kSpaced = u"+*/',;.!?:";

/// Other accented letters stay as they are. Meant so.
constexpr std::u16string_view kAccented = u"éèêàùôç";
constexpr std::u16string_view kPlain = u"eeeauoc";

/// What makes a plural or a feminine of the solution. Nothing is ever taken off it.
constexpr std::u16string_view kEndings[] = {u"", u"s", u"e", u"es", u"x"};

/// What stands for a small letter or a sign in the text compared; nothing for a deleted one.
std::optional<char16_t> replacement(char16_t c) {
    if (kDeleted.find(c) != kDeleted.npos)
        return std::nullopt;
    if (kSpaced.find(c) != kSpaced.npos)
        return u' ';
    const std::size_t accent = kAccented.find(c);
    return accent != kAccented.npos ? kPlain[accent] : c;
}

bool isWordAt(std::u16string_view text, std::size_t position) {
    return position < text.size() && text::isWordCharacter(text[position]);
}

/// Reads a text character by character and knows after each whether it has just read `word`. Each
/// character costs the same on the average, whatever the word repeats (Knuth, Morris and Pratt).
class WordReader {
public:
    explicit WordReader(std::u16string_view word) : word_(word), borders_(word.size() + 1, 0) {
        for (std::size_t length = 1; length < word.size(); ++length)
            borders_[length + 1] = extended(borders_[length], word[length]);
    }

    bool isWhole() const { return matched_ == word_.size(); }
    void read(char16_t c) { matched_ = extended(isWhole() ? borders_[matched_] : matched_, c); }

private:
    /// How much of the word ends at `c`, when `length` characters of it ended just before.
    std::size_t extended(std::size_t length, char16_t c) const {
        if (word_.empty())
            return 0;
        while (length > 0 && word_[length] != c)
            length = borders_[length];
        return word_[length] == c ? length + 1 : 0;
    }

    std::u16string_view word_;
    /// By length: how much of the word's start also ends the first `length` characters, short of
    /// all of them.
    std::vector<std::size_t> borders_;
    std::size_t matched_ = 0;
};

bool startsAWord(std::u16string_view text, std::size_t position) {
    return position == 0 || !isWordAt(text, position - 1);
}

/// Whether a word ends at `position`, or after an ending that stands there.
bool endsAWord(std::u16string_view text, std::size_t position) {
    return std::any_of(std::begin(kEndings), std::end(kEndings), [&](std::u16string_view ending) {
        return text.substr(position).starts_with(ending) &&
               !isWordAt(text, position + ending.size());
    });
}

std::u16string smallLetters(std::u16string_view text) {
    std::u16string out(text);
    std::transform(out.begin(), out.end(), out.begin(), text::lowerCase);
    return out;
}

} // namespace

std::u16string foldedAnswer(std::u16string_view typed) {
    std::u16string out;
    out.reserve(typed.size());
    for (std::size_t i = 0; i < typed.size(); ++i) {
        if (const auto kept = replacement(text::lowerCase(typed[i])))
            out += *kept;
        else if (++i < typed.size())
            out += text::lowerCase(typed[i]); // it slid under a position already passed
    }
    return out;
}

bool castexte(std::u16string_view solution, std::u16string_view typed) {
    // There is no word to look for: between any two signs would be a place for it.
    if (solution.find_first_not_of(u' ') == solution.npos)
        return typed.empty();
    const std::u16string text = foldedAnswer(typed);
    const std::u16string sought = smallLetters(solution);
    WordReader reader(sought);
    for (std::size_t end = 0;; ++end) {
        if (reader.isWhole() && startsAWord(text, end - sought.size()) && endsAWord(text, end))
            return true;
        if (end == text.size())
            return false;
        reader.read(text[end]);
    }
}

} // namespace exercises
