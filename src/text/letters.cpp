#include "text/letters.h"

#include <algorithm>
#include <iterator>
#include <span>
#include <string_view>

namespace text {

namespace {

/// Capitals that all lie `toSmall` before their small letters; with `step` 2 only every other
/// character of the stretch is a capital.
struct Capitals {
    char16_t first;
    char16_t last;
    int step;
    int toSmall;
};

/// In ascending order.
constexpr Capitals kCapitals[] = {
    {0x0041, 0x005A, 1, 0x20},    // A to Z
    {0x00C0, 0x00D6, 1, 0x20},    // À to Ö
    {0x00D8, 0x00DE, 1, 0x20},    // Ø to Þ
    {0x0100, 0x012E, 2, 1},       // Latin Extended-A
    {0x0132, 0x0136, 2, 1},       // Œ is among the following
    {0x0139, 0x0147, 2, 1},       //
    {0x014A, 0x0176, 2, 1},       //
    {0x0178, 0x0178, 1, -0x79},   // Ÿ
    {0x0179, 0x017D, 2, 1},       //
    {0x0386, 0x0386, 1, 0x26},    // Greek, accented
    {0x0388, 0x038A, 1, 0x25},    //
    {0x038C, 0x038C, 1, 0x40},    //
    {0x038E, 0x038F, 1, 0x3F},    //
    {0x0391, 0x03A1, 1, 0x20},    // Α to Ρ
    {0x03A3, 0x03AB, 1, 0x20},    // Σ to Ϋ
    {0x2126, 0x2126, 1, -0x1D5D}, // ohm: ω
    {0x212A, 0x212A, 1, -0x20BF}, // kelvin: k
    {0x212B, 0x212B, 1, -0x2046}, // ångström: å
};

/// U+00C0 to U+017F without accents.
constexpr char16_t kPlainLatin[] = u"AAAAAAÆCEEEEIIIIÐNOOOOO×ØUUUUYÞß"
                                   u"aaaaaaæceeeeiiiiðnooooo÷øuuuuyþy"
                                   u"AaAaAaCcCcCcCcDdĐđEeEeEeEeEeGgGg"
                                   u"GgGgHhĦħIiIiIiIiIıĲĳJjKkĸLlLlLlĿ"
                                   u"ŀŁłNnNnNnŉŊŋOoOoOoŒœRrRrRrSsSsSs"
                                   u"SsTtTtŦŧUuUuUuUuUuUuWwYyYZzZzZzſ";
constexpr char16_t kFirstLatin = 0x00C0;
constexpr char16_t kLastLatin = 0x017F;
static_assert(std::size(kPlainLatin) == kLastLatin - kFirstLatin + 2, "a letter for each");

/// The accented letters of Greek, and each without its accent.
constexpr std::u16string_view kAccentedGreek = u"ΆΈΉΊΌΎΏΐΪΫάέήίΰϊϋόύώ";
constexpr std::u16string_view kPlainGreek = u"ΑΕΗΙΟΥΩιΙΥαεηιυιυουω";
static_assert(kAccentedGreek.size() == kPlainGreek.size(), "a letter for each");

struct Block {
    char16_t first;
    char16_t last;
};

/// Letters and digits below U+0250, in ascending order.
constexpr Block kLetters[] = {
    {0x30, 0x39}, {0x41, 0x5A}, {0x61, 0x7A}, {0xAA, 0xAA}, {0xB2, 0xB3},   {0xB5, 0xB5},
    {0xB9, 0xBA}, {0xBC, 0xBE}, {0xC0, 0xD6}, {0xD8, 0xF6}, {0xF8, 0x024F},
};
constexpr char16_t kBeyondTheTable = 0x0250;

/// Blocks of Unicode from there on whose characters make no words, in ascending order.
constexpr Block kSeparators[] = {
    {0x2000, 0x206F}, // general punctuation
    {0x20A0, 0x20CF}, // currency signs
    {0x2190, 0x245F}, // arrows, mathematics, technical signs
    {0x249C, 0x24E9}, // letters in circles and parentheses
    {0x2500, 0x2775}, // frames, symbols, ornaments
    {0x2794, 0x2BFF}, // more of them
    {0x3000, 0x3004}, // East Asian punctuation
    {0x3008, 0x3020}, //
    {0xD800, 0xF8FF}, // surrogates (symbols and faces, mostly) and private use
    {0xFE10, 0xFE1F}, // forms of punctuation
    {0xFE30, 0xFE6F}, //
    {0xFEFF, 0xFF0F}, // byte order mark, wide punctuation
    {0xFFFC, 0xFFFF}, // replacements
};

/// The range that holds `c`; null when none does.
template <class Range>
const Range* rangeOf(char16_t c, std::span<const Range> ranges) {
    const auto found = std::lower_bound(ranges.begin(), ranges.end(), c,
                                        [](const Range& r, char16_t x) { return r.last < x; });
    return found != ranges.end() && found->first <= c ? &*found : nullptr;
}

} // namespace

char16_t lowerCase(char16_t c) {
    const Capitals* range = rangeOf<Capitals>(c, kCapitals);
    if (!range || (c - range->first) % range->step != 0)
        return c;
    return static_cast<char16_t>(c + range->toSmall);
}

char16_t withoutAccent(char16_t c) {
    if (c < kFirstLatin)
        return c;
    if (c <= kLastLatin)
        return kPlainLatin[c - kFirstLatin];
    const std::size_t greek = kAccentedGreek.find(c);
    return greek == std::u16string_view::npos ? c : kPlainGreek[greek];
}

char16_t keyboardForm(char16_t c) {
    switch (c) {
    case u'\u2019': // typographic apostrophe
        return u'\'';
    case u'\u00A0': // no-break spaces
    case u'\u202F':
        return u' ';
    case u'\u2011': // no-break hyphen
    case u'\u2212': // minus
        return u'-';
    case u'\u03BC': // mu, the prefix micro
        return u'\u00B5';
    default:
        return c;
    }
}

char16_t plainLetter(char16_t c) {
    // İ turns out a capital without its point.
    return lowerCase(withoutAccent(lowerCase(keyboardForm(c))));
}

bool isWordCharacter(char16_t c) {
    return c < kBeyondTheTable ? rangeOf<Block>(c, kLetters) != nullptr
                               : !rangeOf<Block>(c, kSeparators);
}

} // namespace text
