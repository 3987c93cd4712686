#include "common/formula_parts.h"

#include "common/words.h"
#include "text/letters.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace common {

namespace {

using Kind = FormulaPart::Kind;

/// Commands inside commands; the formulas of a textbook have three.
constexpr int kDeepest = 8;

bool isLetter(char16_t c) {
    constexpr std::u16string_view kRaised = u"¹²³";
    const bool isDigit =
        (c >= u'0' && c <= u'9') || kRaised.find(c) != kRaised.npos || (c >= 0x2070 && c <= 0x209F);
    return text::isWordCharacter(c) && !isDigit;
}

class Parser {
public:
    explicit Parser(std::u16string_view source) : source_(source) {}

    FormulaRow row(char16_t end = 0, int depth = 0) {
        FormulaRow parts;
        while (at_ < source_.size() && (end == 0 || source_[at_] != end))
            parseOne(parts, depth);
        ++at_; // the end
        return parts;
    }

private:
    void parseOne(FormulaRow& parts, int depth) {
        const char16_t c = source_[at_];
        if ((c == u'_' || c == u'^') && depth < kDeepest) {
            ++at_;
            addScript(parts, c == u'_', argument(depth));
        } else if (c == u'\\') {
            parseCommand(parts, depth);
        } else {
            ++at_;
            addText(parts, {&c, 1}, isLetter(c));
        }
    }

    static void addScript(FormulaRow& parts, bool isIndex, FormulaRow script) {
        if (parts.empty() || parts.back().kind != Kind::Scripts)
            parts.push_back({Kind::Scripts, {}, false, {}, {}});
        (isIndex ? parts.back().first : parts.back().second) = std::move(script);
    }

    static void addText(FormulaRow& parts, std::u16string_view text, bool italic) {
        const bool joins =
            !parts.empty() && parts.back().kind == Kind::Text && parts.back().italic == italic;
        if (joins)
            parts.back().text += text;
        else
            parts.push_back({Kind::Text, std::u16string(text), italic, {}, {}});
    }

    FormulaRow argument(int depth) {
        if (at_ < source_.size() && source_[at_] == u'{') {
            ++at_;
            return row(u'}', depth + 1);
        }
        FormulaRow one;
        if (at_ < source_.size())
            addText(one, source_.substr(at_, 1), isLetter(source_[at_]));
        ++at_;
        return one;
    }

    std::u16string_view words() {
        const std::size_t end = source_.find(u'}', at_);
        const std::u16string_view text = source_.substr(at_ + 1, end - at_ - 1);
        at_ = end + 1;
        return text;
    }

    void parseCommand(FormulaRow& parts, int depth) {
        const std::size_t start = at_++;
        while (at_ < source_.size() && isLetter(source_[at_]))
            ++at_;
        const std::u16string_view name = source_.substr(start + 1, at_ - start - 1);
        const bool closes =
            at_ < source_.size() && source_[at_] == u'{' && source_.find(u'}', at_) != source_.npos;
        if (name == u"text" && closes) {
            addText(parts, words(), false);
        } else if (name == u"cos" || name == u"sin" || name == u"tan") {
            addText(parts, name, false);
        } else if (const auto kind = kindOf(name); kind && closes && depth < kDeepest) {
            FormulaPart part{*kind, {}, false, argument(depth), {}};
            if (*kind == Kind::Fraction)
                part.second = argument(depth);
            parts.push_back(std::move(part));
        } else {
            addText(parts, source_.substr(start, at_ - start), false);
        }
    }

    static std::optional<Kind> kindOf(std::u16string_view name) {
        if (name == u"frac")
            return Kind::Fraction;
        if (name == u"sqrt")
            return Kind::Root;
        if (name == u"vec")
            return Kind::Vector;
        if (name == u"overline")
            return Kind::Overline;
        return std::nullopt;
    }

    std::u16string_view source_;
    std::size_t at_ = 0;
};

/// Signs that screen readers say nothing of, or something else.
std::u16string signsInWords(std::u16string_view text) {
    constexpr std::pair<char16_t, const char16_t*> kSigns[] = {
        {u'=', u" égale "}, {u'+', u" plus "}, {u'−', u" moins "}, {u'×', u" fois "},
        {u'·', u" fois "},  {u'/', u" sur "},  {u'′', u" prime"},  {u'→', u" donne "}};
    std::u16string spoken;
    for (const char16_t c : text) {
        const auto* sign = std::find_if(std::begin(kSigns), std::end(kSigns),
                                        [c](const auto& one) { return one.first == c; });
        spoken += sign == std::end(kSigns) ? std::u16string(1, c) : sign->second;
    }
    return spoken;
}

std::u16string inWords(const FormulaRow& row);

std::u16string scriptsInWords(const FormulaPart& part) {
    std::u16string spoken;
    if (!part.first.empty())
        spoken += u" indice " + inWords(part.first);
    if (!part.second.empty()) {
        const std::u16string power = inWords(part.second);
        spoken += power == u"2"   ? u" au carré"
                  : power == u"3" ? u" au cube"
                                  : u" puissance " + power;
    }
    return spoken + u' ';
}

std::u16string inWords(const FormulaRow& row) {
    std::u16string spoken;
    for (const FormulaPart& part : row) {
        switch (part.kind) {
        case Kind::Text:
            spoken += signsInWords(part.text);
            break;
        case Kind::Scripts:
            spoken += scriptsInWords(part);
            break;
        case Kind::Fraction:
            spoken += u' ' + inWords(part.first) + u" sur " + inWords(part.second) + u' ';
            break;
        case Kind::Root:
            spoken += u" racine de " + inWords(part.first) + u' ';
            break;
        case Kind::Vector:
            spoken += u" vecteur " + inWords(part.first) + u' ';
            break;
        case Kind::Overline:
            spoken += u' ' + inWords(part.first) + u" algébrique ";
            break;
        }
    }
    std::vector<std::u16string> words;
    for (const std::u16string_view word : splitAtBlanks(spoken))
        words.emplace_back(word);
    return joined(words, u" ");
}

} // namespace

FormulaRow formulaParts(std::u16string_view source) {
    return Parser(source).row();
}

std::u16string formulaInWords(std::u16string_view source) {
    return inWords(formulaParts(source));
}

} // namespace common
