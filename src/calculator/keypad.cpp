#include "calculator/keypad.h"

#include "calculator/function_table.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace calculator {

namespace {

/// All but those of the functions.
constexpr Key kKeys[] = {
    {u"Command1", u"M+", u"Ajouter à la mémoire", u"", Rule::MemoryAdd},
    {u"Command2", u"M\u2212", u"Retrancher de la mémoire", u"", Rule::MemorySubtract},
    {u"Command3", u"MR", u"Rappeler la mémoire", u"", Rule::MemoryRecall},
    {u"command4", u"MC", u"Vider la mémoire", u"", Rule::MemoryClear},

    {u"Bpo", u"(", u"", u"(", Rule::Times, u"Parenthèse ouvrante"},
    {u"bpf", u")", u"", u")", Rule::Append, u"Parenthèse fermante"},
    {u"pi", u"π", u"3.1415927", u"", Rule::Pi, u"pi"},
    {u"command5", u"1/x", u"Inverse", u"1 / ", Rule::Times},
    {u"B10x", u"10^x", u"Puissance de dix", u"10 ^ ", Rule::Times},
    {u"btcarre", u"x^2", u"Carré", u" ^ 2", Rule::AfterAnswer},
    {u"puissance", u"x^y", u"Puissance", u" ^ ", Rule::AfterAnswer},
    {u"demi", u"1/2", u"Un demi", u"1 / 2", Rule::Times},
    {u"rappel", u"Rappel", u"Dernière expression calculée", u"", Rule::RecallEntry},

    {u"kilo", u"kilo", u"kilo", u"E+3", Rule::Append},
    {u"mega", u"méga", u"méga", u"E+6", Rule::Append},
    {u"giga", u"Giga", u"Giga", u"E+9", Rule::Append},
    {u"tera", u"téra", u"téra", u"E+12", Rule::Append},
    {u"mil", u"milli", u"milli", u"E-3", Rule::Append},
    {u"micro", u"micro", u"micro", u"E-6", Rule::Append},
    {u"nano", u"nano", u"nano", u"E-9", Rule::Append},
    {u"pico", u"pico", u"pico", u"E-12", Rule::Append},

    {u"B0", u"0", u"", u"0", Rule::Append},
    {u"B1", u"1", u"", u"1", Rule::Append},
    {u"B2", u"2", u"", u"2", Rule::Append},
    {u"B3", u"3", u"", u"3", Rule::Append},
    {u"B4", u"4", u"", u"4", Rule::Append},
    {u"B5", u"5", u"", u"5", Rule::Append},
    {u"B6", u"6", u"", u"6", Rule::Append},
    {u"B7", u"7", u"", u"7", Rule::Append},
    {u"B8", u"8", u"", u"8", Rule::Append},
    {u"B9", u"9", u"", u"9", Rule::Append},
    {u"Bpoint", u".", u"", u".", Rule::Append, u"Point décimal"},
    {u"BtoEXP", u"x 10", u"x 10", u"E", Rule::Append, u"Fois dix puissance"},

    {u"EFFACE", u"", u"Effacer en arrière", u"", Rule::EraseBack},
    {u"RAZ", u"RAZ", u"Tout effacer", u"", Rule::EraseAll},
    {u"multip", u"×", u"", u" * ", Rule::Operator, u"Multiplié par"},
    {u"div", u"÷", u"", u" / ", Rule::Operator, u"Divisé par"},
    {u"plus", u"+", u"", u" + ", Rule::Plus, u"Plus"},
    {u"moins", u"\u2212", u"", u" - ", Rule::Minus, u"Moins"},
    {u"ANS", u"ANS", u"Dernière réponse", u"", Rule::LastAnswer},
    {u"EXE", u"=", u"Calculer", u"", Rule::Evaluate},
};

struct Typed {
    char16_t character;
    TextView key;
};

constexpr Typed kTyped[] = {
    {u'0', u"B0"},     {u'1', u"B1"},        {u'2', u"B2"},      {u'3', u"B3"},
    {u'4', u"B4"},     {u'5', u"B5"},        {u'6', u"B6"},      {u'7', u"B7"},
    {u'8', u"B8"},     {u'9', u"B9"},        {u'.', u"Bpoint"},  {u'd', u"BtoEXP"},
    {u'e', u"BtoEXP"}, {u'D', u"BtoEXP"},    {u'E', u"BtoEXP"},  {u'(', u"Bpo"},
    {u')', u"bpf"},    {u'*', u"multip"},    {u'+', u"plus"},    {u'-', u"moins"},
    {u'/', u"div"},    {u'^', u"puissance"}, {u'\b', u"EFFACE"}, {u'\r', u"EXE"},
};

std::vector<Key> allKeys() {
    std::vector<Key> keys(std::begin(kKeys), std::end(kKeys));
    for (const Function& function : functions()) {
        const FunctionKey& key = function.key;
        keys.push_back({key.control, key.caption, key.tooltip, function.typed, Rule::Times});
    }
    return keys;
}

} // namespace

std::span<const Key> keypad() {
    static const std::vector<Key> keys = allKeys();
    return keys;
}

const Key& keyNamed(TextView name) {
    return *std::ranges::find(keypad(), name, &Key::name);
}

const Key* keyTyped(char16_t character) {
    const auto found = std::ranges::find(kTyped, character, &Typed::character);
    return found == std::end(kTyped) ? nullptr : &keyNamed(found->key);
}

} // namespace calculator
