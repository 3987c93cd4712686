#include "authoring/typography.h"

#include <QChar>

#include <algorithm>
#include <array>
#include <string_view>

namespace authoring {

namespace {

constexpr char32_t kNoBreak = U'\u00A0';

/// Signs that a line never begins with, when a blank stands before them.
constexpr std::u32string_view kTied = U";:!?»%‰…)]}";
/// Operators: they too, when a blank stands on either side.
constexpr std::u32string_view kOperators = U"=+−-×÷·<>≈≠≤≥±→⇌/";

/// What word processors put between letters to part words or hold them together; nobody sees it.
constexpr std::u32string_view kUnseen = U"\u00AD\u200B\u200C\u200D\u2060\uFEFF";
/// The narrow blanks of typeset French, which the faces of a page do not have.
constexpr std::u32string_view kNarrowBlanks = U"\u202F\u2009\u2007\u2008\u200A";

/// Symbols of units after a number. A word that only begins like one is none.
constexpr std::array kUnits = {
    U"m",  U"km",  U"hm", U"dm",  U"cm",  U"mm",  U"µm",  U"μm",  U"nm", U"pm",  U"g",    U"kg",
    U"mg", U"µg",  U"t",  U"s",   U"ms",  U"µs",  U"ns",  U"min", U"h",  U"A",   U"mA",   U"µA",
    U"V",  U"mV",  U"kV", U"W",   U"mW",  U"kW",  U"MW",  U"GW",  U"J",  U"kJ",  U"MJ",   U"N",
    U"mN", U"kN",  U"Pa", U"hPa", U"kPa", U"MPa", U"bar", U"K",   U"°C", U"mol", U"mmol", U"L",
    U"mL", U"cL",  U"dL", U"hL",  U"Hz",  U"kHz", U"MHz", U"GHz", U"Ω",  U"kΩ",  U"MΩ",   U"C",
    U"F",  U"µF",  U"nF", U"eV",  U"keV", U"MeV", U"dB",  U"lm",  U"cd", U"T",   U"mT",   U"H",
    U"mH", U"kWh", U"Wh", U"rad", U"tr",  U"ha",  U"°",   U"u",   U"Bq", U"Gy",  U"Sv",   U"ans"};

bool isOneOf(char32_t c, std::u32string_view set) {
    return set.find(c) != set.npos;
}

bool isDigit(char32_t c) {
    return c >= U'0' && c <= U'9';
}

bool isLetter(char32_t c) {
    return QChar::isLetter(c) || c == U'°' || c == U'µ';
}

/// The text as the rules see it: a box is a letter.
class Composer {
public:
    explicit Composer(InlineText& text) : atoms_(text.atoms) {}

    void compose() {
        signs();
        blanks();
        guillemets();
        for (std::size_t i = 0; i < atoms_.size(); ++i)
            if (atoms_[i].isSpace() && isTied(i))
                atoms_[i].character = kNoBreak;
            else if (atoms_[i].isSpace() && i > 1 && isOneOf(at(i - 1), kOperators) &&
                     at(i - 2) == kNoBreak)
                atoms_[i].weak = true;
    }

private:
    static constexpr char32_t kBox = U'x';

    char32_t at(std::size_t i) const {
        if (i >= atoms_.size() || atoms_[i].kind == Atom::Kind::Break)
            return 0;
        return atoms_[i].kind == Atom::Kind::Box ? kBox : atoms_[i].character;
    }

    void signs() {
        for (std::size_t i = 1; i + 1 < atoms_.size(); ++i)
            if (at(i) == U'\'' && isLetter(at(i - 1)) && isLetter(at(i + 1)))
                atoms_[i].character = U'’';
        for (std::size_t i = 0; i + 2 < atoms_.size(); ++i)
            if (at(i) == U'.' && at(i + 1) == U'.' && at(i + 2) == U'.') {
                atoms_[i].character = U'…';
                erase(i + 1, 2);
            }
    }

    void erase(std::size_t first, std::size_t count) {
        const auto begin = atoms_.begin() + static_cast<std::ptrdiff_t>(first);
        atoms_.erase(begin, begin + static_cast<std::ptrdiff_t>(count));
    }

    /// Control characters are blanks; of several blanks the first stays, of those at the end of a
    /// line none.
    void blanks() {
        std::vector<Atom> kept;
        kept.reserve(atoms_.size());
        for (Atom& atom : atoms_) {
            if (atom.kind == Atom::Kind::Character && isOneOf(atom.character, kUnseen))
                continue;
            if (atom.kind == Atom::Kind::Character && isOneOf(atom.character, kNarrowBlanks))
                atom.character = kNoBreak;
            if (atom.kind == Atom::Kind::Character &&
                (atom.character < 0x20 || (atom.character >= 0x7F && atom.character < 0xA0)))
                atom.character = U' ';
            if (atom.kind == Atom::Kind::Break)
                while (!kept.empty() && kept.back().isSpace())
                    kept.pop_back();
            const bool atStart = kept.empty() || kept.back().kind == Atom::Kind::Break;
            if (!(atom.isSpace() && (atStart || kept.back().isSpace())))
                kept.push_back(atom);
        }
        while (!kept.empty() && (kept.back().isSpace() || kept.back().kind == Atom::Kind::Break))
            kept.pop_back();
        atoms_ = std::move(kept);
    }

    void guillemets() {
        std::vector<Atom> out;
        out.reserve(atoms_.size());
        for (std::size_t i = 0; i < atoms_.size(); ++i) {
            const bool blankBefore = i > 0 && (at(i - 1) == U' ' || at(i - 1) == kNoBreak);
            if (at(i) == U'»' && i > 0 && !blankBefore)
                out.push_back(blankLike(atoms_[i]));
            out.push_back(atoms_[i]);
            const char32_t next = at(i + 1);
            if (at(i) == U'«' && next != U' ' && next != kNoBreak && next != 0)
                out.push_back(blankLike(atoms_[i]));
        }
        atoms_ = std::move(out);
    }

    static Atom blankLike(Atom atom) {
        atom.character = kNoBreak;
        return atom;
    }

    /// Whether the blank at `i` holds together what stands around it.
    bool isTied(std::size_t i) const {
        const char32_t before = i > 0 ? at(i - 1) : 0;
        const char32_t next = at(i + 1);
        if (isOneOf(next, kTied) || before == U'«')
            return true;
        const bool blankAfter =
            i + 2 >= atoms_.size() || at(i + 2) == U' ' || at(i + 2) == 0 || at(i + 2) == kNoBreak;
        if (isOneOf(next, kOperators) && blankAfter)
            return true;
        if (!isDigit(before))
            return false;
        return isThreeDigits(i + 1) || isUnit(i + 1);
    }

    /// A group of a number: "3 600", "299 792 458".
    bool isThreeDigits(std::size_t i) const {
        return isDigit(at(i)) && isDigit(at(i + 1)) && isDigit(at(i + 2)) && !isDigit(at(i + 3));
    }

    bool isUnit(std::size_t i) const {
        std::u32string word;
        while (i < atoms_.size() && atoms_[i].kind == Atom::Kind::Character && isLetter(at(i)) &&
               word.size() < 5)
            word += at(i++);
        return !isLetter(at(i)) &&
               std::any_of(kUnits.begin(), kUnits.end(),
                           [&](std::u32string_view unit) { return unit == word; });
    }

    std::vector<Atom>& atoms_;
};

} // namespace

void composeFrench(InlineText& text) {
    Composer(text).compose();
}

} // namespace authoring
