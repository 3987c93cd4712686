#include "calculator/pasted_keys.h"

#include "text/letters.h"

#include <algorithm>

namespace calculator {

namespace {

/// More than the display can show many times over; whatever else the clipboard has is no
/// expression.
constexpr std::size_t kMostPasted = 1'000;

constexpr TextView kBlanks = u" \t\r\n";

struct Printed {
    char16_t character;
    TextView key;
};
constexpr Printed kPrinted[] = {
    {u'×', u"multip"}, {u'·', u"multip"}, {u'÷', u"div"},     {u'\u2212', u"moins"},
    {u'√', u"racine"}, {u'π', u"pi"},     {u'²', u"btcarre"},
};

bool beginsWith(TextView text, TextView name) {
    const auto same = [](char16_t a, char16_t b) {
        return text::lowerCase(a) == text::lowerCase(b);
    };
    return text.size() >= name.size() && std::equal(name.begin(), name.end(), text.begin(), same);
}

/// What a key is called in a text: a function by what it types, the number π by its letters.
TextView nameOf(const Key& key) {
    if (key.rule == Rule::Pi)
        return u"pi";
    const std::size_t blank = key.appends.find(u' ');
    const bool isWord = key.rule == Rule::Times && blank != key.appends.npos && blank > 1;
    return isWord && key.appends.front() > u'9' ? key.appends.substr(0, blank) : TextView();
}

/// The key with the longest name that the text begins with: "exp" is no "E".
const Key* named(TextView text) {
    const Key* longest = nullptr;
    for (const Key& key : keypad()) {
        const TextView name = nameOf(key);
        if (!name.empty() && beginsWith(text, name) &&
            (!longest || name.size() > nameOf(*longest).size()))
            longest = &key;
    }
    return longest;
}

const Key* single(char16_t character) {
    const auto printed = std::ranges::find(kPrinted, character, &Printed::character);
    if (printed != std::end(kPrinted))
        return &keyNamed(printed->key);
    return character < u' ' ? nullptr : keyTyped(character); // no erasing, no "="
}

} // namespace

PastedKeys pastedKeys(TextView text) {
    PastedKeys pasted;
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
    text = text.substr(0, std::min(text.find_first_of(u"\r\n"), kMostPasted));
    while (!text.empty() && !pasted.endedAtComma) {
        const Key* const word = named(text);
        const Key* const key = word ? word : single(text.front());
        if (key)
            pasted.keys.push_back(key);
        pasted.endedAtComma = !key && text.front() == u',';
        text.remove_prefix(word ? nameOf(*word).size() : 1);
    }
    return pasted;
}

} // namespace calculator
