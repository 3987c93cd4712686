#include "authoring/formula_marks.h"
#include "authoring/formula_signs.h"

#include <QHash>

namespace authoring {

namespace {

using Kind = FormulaNode::Kind;

constexpr int kMaxFormulaDepth = 12;

/// Far more than a line holds; it also bounds how deep commands may stand in each other.
constexpr qsizetype kMaxFormulaLength = 1000;

constexpr char16_t kNoBreak = u'\u00A0';

void standUpright(FormulaNode& node) {
    node.italic = false;
    for (FormulaNode& child : node.children)
        standUpright(child);
}

/// Signs that stand high by themselves, as an exponent too: degrees and primes.
bool isHighSign(const FormulaNode& node) {
    return node.children.size() == 1 && node.children.front().kind == Kind::Sign &&
           (node.children.front().text == u"°" || node.children.front().text == u"′");
}

class FormulaReader {
public:
    explicit FormulaReader(FormulaText& source) : source_(source), text_(source.text()) {}

    FormulaNode read() {
        FormulaNode all = group(false);
        while (!atEnd()) {
            source_.fault(next_, QStringLiteral("« } » sans « { » qui l’ouvre"));
            ++next_;
            FormulaNode rest = group(false);
            std::move(rest.children.begin(), rest.children.end(), std::back_inserter(all.children));
        }
        return all;
    }

private:
    bool atEnd() const { return next_ >= text_.size(); }
    QChar peek() const { return atEnd() ? QChar() : text_[next_]; }

    /// Up to the end or a closing brace, which stays, unless `braced`.
    FormulaNode group(bool braced) {
        FormulaNode group;
        group.index = next_;
        const qsizetype start = next_ - 1;
        while (!atEnd() && peek() != u'}')
            element(group);
        if (braced && atEnd())
            source_.fault(start, QStringLiteral("« { » sans « } » qui la ferme"));
        else if (braced)
            ++next_;
        return group;
    }

    void element(FormulaNode& group) {
        const qsizetype index = next_;
        const QChar c = peek();
        if (c.isSpace()) {
            blanks(group);
        } else if (c == u'^' || c == u'_') {
            script(group);
        } else if (c == u'{') {
            add(group, braces(), index);
        } else if (c == u'\\') {
            command(group);
        } else if (c.isDigit()) {
            add(group, number(), index);
        } else if (c == u'&' || c == u'#' || c == u'%') {
            source_.fault(index, QStringLiteral("« %1 » s’écrit « \\%1 » dans une formule").arg(c));
            ++next_;
        } else {
            add(group, character(), index);
        }
    }

    /// Blanks say nothing but in an enumeration: "(2 ; 3)", "x, y".
    void blanks(FormulaNode& group) {
        const qsizetype index = next_;
        while (!atEnd() && peek().isSpace())
            ++next_;
        const bool inside = !group.children.empty() && !atEnd() && peek() != u'}';
        const bool after = inside && group.children.back().role == FormulaNode::Role::Separator;
        if (after || (inside && peek() == u';'))
            add(group, gap(), index);
    }

    /// What follows it begins anew: a minus sign belongs to its number.
    static FormulaNode gap() {
        FormulaNode node = signOfCharacter(kNoBreak, true);
        node.role = FormulaNode::Role::Separator;
        return node;
    }

    static void add(FormulaNode& group, FormulaNode node, qsizetype index) {
        node.index = index;
        group.children.push_back(std::move(node));
    }

    FormulaNode character() {
        const QChar c = text_[next_++];
        char32_t code = c.unicode();
        if (c.isHighSurrogate() && peek().isLowSurrogate())
            code = QChar::surrogateToUcs4(c, text_[next_++]);
        if (upright_ && code == U'.')
            code = U'·';
        FormulaNode node = signOfCharacter(code, upright_);
        if (upright_ && node.role == FormulaNode::Role::Binary)
            node.role = FormulaNode::Role::Ordinary; // "m·s": nothing to set apart in a unit
        return node;
    }

    /// Digits, the sign between the whole and the decimals, and the blanks between groups of
    /// digits: nobody puts any there but to see them.
    FormulaNode number() {
        FormulaNode node;
        node.kind = Kind::Sign;
        while (!atEnd())
            if (peek().isDigit() || isDecimalSign())
                node.text += text_[next_++];
            else if (const qsizetype group = nextGroup(); group > next_) {
                node.text += QChar(kNoBreak);
                next_ = group;
            } else {
                break;
            }
        return node;
    }
    /// Where the digits behind the blanks that come now begin; where we are when none do.
    qsizetype nextGroup() const {
        qsizetype at = next_;
        while (at < text_.size() && text_[at].isSpace())
            ++at;
        return at < text_.size() && text_[at].isDigit() ? at : next_;
    }
    bool isDecimalSign() const {
        return (peek() == u',' || (peek() == u'.' && !upright_)) && next_ + 1 < text_.size() &&
               text_[next_ + 1].isDigit();
    }

    FormulaNode braces() {
        const qsizetype open = next_++;
        if (++depth_ > kMaxFormulaDepth) {
            source_.fault(open, QStringLiteral("trop d’accolades les unes dans les autres"));
            next_ = text_.size();
            --depth_;
            return {};
        }
        FormulaNode inner = group(true);
        --depth_;
        return inner;
    }

    /// What a command or a script takes: braces, a command, or one character.
    FormulaNode argument(qsizetype of) {
        while (!atEnd() && peek().isSpace())
            ++next_;
        FormulaNode holder;
        holder.index = next_;
        if (atEnd() || peek() == u'}') {
            source_.fault(of, QStringLiteral("il manque ce qui suit"));
            return holder;
        }
        if (peek() == u'{')
            return braces();
        if (peek() == u'\\')
            command(holder);
        else
            add(holder, character(), next_);
        return holder;
    }

    void script(FormulaNode& group) {
        const qsizetype index = next_;
        const bool isExponent = text_[next_++] == u'^';
        FormulaNode content = argument(index);
        if (isExponent && isHighSign(content))
            return add(group, std::move(content.children.front()), index);
        const bool onScripts = !group.children.empty() &&
                               group.children.back().kind == Kind::Scripts &&
                               group.children.back().children[isExponent ? 2 : 1].empty();
        if (!onScripts) {
            FormulaNode scripts;
            scripts.kind = Kind::Scripts;
            scripts.index = index;
            scripts.children.resize(3);
            const bool twice =
                !group.children.empty() && group.children.back().kind == Kind::Scripts;
            if (twice)
                source_.fault(index, QStringLiteral("deux indices ou deux exposants de suite"));
            if (!group.children.empty() && !twice) {
                scripts.role = group.children.back().role;
                scripts.children[0] = std::move(group.children.back());
                group.children.pop_back();
            }
            group.children.push_back(std::move(scripts));
        }
        FormulaNode& scripts = group.children.back();
        // Letters of an index name things ("E_c"), so they stand upright; those before a nuclide
        // are quantities.
        if (!isExponent && !scripts.children[0].empty())
            standUpright(content);
        scripts.children[isExponent ? 2 : 1] = std::move(content);
    }

    void command(FormulaNode& group) {
        const qsizetype index = next_++;
        QString name;
        if (!atEnd() && !peek().isLetter())
            name = text_[next_++];
        while (name.isEmpty() || name[0].isLetter()) {
            if (atEnd() || !peek().isLetter() || peek().unicode() > 127)
                break;
            name += text_[next_++];
        }
        if (name == u"!" || name == u"displaystyle")
            return; // a little less room, the size that is drawn anyway: nothing
        if (withArguments(group, name, index))
            return;
        if (auto sign = signOfCommand(name)) {
            if (upright_ && sign->role == FormulaNode::Role::Binary)
                sign->role = FormulaNode::Role::Ordinary;
            if (upright_)
                sign->italic = false;
            add(group, *std::move(sign), index);
            return;
        }
        source_.fault(index, QStringLiteral("« \\%1 » : cette commande n’est pas lue ; "
                                            "docs/markdown.md dit lesquelles le sont")
                                 .arg(name));
    }

    /// Whether `name` is a command of its own; it is carried out then.
    bool withArguments(FormulaNode& group, const QString& name, qsizetype index) {
        static const QHash<QString, void (FormulaReader::*)(FormulaNode&, qsizetype)> kForms{
            {"frac", &FormulaReader::fraction},     {"dfrac", &FormulaReader::fraction},
            {"tfrac", &FormulaReader::fraction},    {"sqrt", &FormulaReader::root},
            {"vec", &FormulaReader::vector},        {"overrightarrow", &FormulaReader::vector},
            {"overline", &FormulaReader::bar},      {"bar", &FormulaReader::bar},
            {"hat", &FormulaReader::hat},           {"mathrm", &FormulaReader::uprightGroup},
            {"unit", &FormulaReader::uprightGroup}, {"text", &FormulaReader::words},
            {"qty", &FormulaReader::quantity},      {"ce", &FormulaReader::chemistry},
            {"SI", &FormulaReader::quantity},       {"si", &FormulaReader::uprightGroup},
            {"num", &FormulaReader::plainGroup},    {"left", &FormulaReader::left},
            {"right", &FormulaReader::right}};
        const auto form = kForms.find(name);
        if (form == kForms.end())
            return false;
        (this->*form.value())(group, index);
        return true;
    }

    void fraction(FormulaNode& group, qsizetype index) {
        FormulaNode node;
        node.kind = Kind::Fraction;
        node.children.push_back(argument(index));
        node.children.push_back(argument(index));
        for (const FormulaNode& part : node.children)
            if (part.empty())
                source_.fault(index, QStringLiteral("une fraction a un numérateur et un "
                                                    "dénominateur"));
        add(group, std::move(node), index);
    }

    void root(FormulaNode& group, qsizetype index) {
        if (peek() == u'[') {
            source_.fault(index, QStringLiteral("seule la racine carrée se dessine"));
            next_ = std::max(next_ + 1, text_.indexOf(u']', next_) + 1);
        }
        FormulaNode node;
        node.kind = Kind::Root;
        node.children.push_back(argument(index));
        add(group, std::move(node), index);
    }

    void vector(FormulaNode& group, qsizetype index) { marked(group, index, u"VE1"); }
    void bar(FormulaNode& group, qsizetype index) { marked(group, index, u"VA1"); }
    void hat(FormulaNode& group, qsizetype index) { marked(group, index, u"CHAPEAU"); }

    void marked(FormulaNode& group, qsizetype index, QStringView directive) {
        add(group, markedSigns(argument(index), directive, source_), index);
    }

    void plainGroup(FormulaNode& group, qsizetype index) { add(group, argument(index), index); }

    void uprightGroup(FormulaNode& group, qsizetype index) {
        const bool before = std::exchange(upright_, true);
        add(group, argument(index), index);
        upright_ = before;
    }

    /// A number and its unit.
    void quantity(FormulaNode& group, qsizetype index) {
        add(group, argument(index), index);
        add(group, signOfCharacter(U'\u00A0', true), index);
        uprightGroup(group, index);
    }

    /// From the opening brace to before the one that closes it; nothing without braces.
    bool braced(qsizetype of, qsizetype& first, qsizetype& last) {
        int depth = 0;
        first = next_ + 1;
        for (last = next_; last < text_.size(); ++last) {
            depth += text_[last] == u'{' ? 1 : text_[last] == u'}' ? -1 : 0;
            if (depth == 0)
                break;
        }
        if (peek() != u'{' || last >= text_.size()) {
            source_.fault(of, QStringLiteral("il manque des accolades : { }"));
            return false;
        }
        next_ = last + 1;
        return true;
    }

    void words(FormulaNode& group, qsizetype index) {
        qsizetype first = 0;
        qsizetype last = 0;
        if (!braced(index, first, last))
            return;
        FormulaNode node;
        node.kind = Kind::Sign;
        node.text = text_.sliced(first, last - first).replace(u' ', QChar(0xA0));
        add(group, std::move(node), first);
    }

    void chemistry(FormulaNode& group, qsizetype index) {
        qsizetype first = 0;
        qsizetype last = 0;
        if (braced(index, first, last))
            add(group, readChemistry(source_, first, last), first);
    }

    void left(FormulaNode& group, qsizetype index) { tall(group, index, 0); }
    void right(FormulaNode& group, qsizetype index) { tall(group, index, 1); }

    void tall(FormulaNode& group, qsizetype index, int side) {
        static constexpr QStringView kSigns[] = {u"[{(", u"]})"};
        if (peek() == u'\\')
            ++next_;
        const qsizetype which = atEnd() ? -1 : kSigns[side].indexOf(peek());
        if (which < 0) {
            source_.fault(index, QStringLiteral("après « \\left » vient « ( », « [ » ou « \\{ », "
                                                "après « \\right » ce qui les ferme"));
            return;
        }
        FormulaNode node;
        node.kind = Kind::Tall;
        node.role = side == 0 ? FormulaNode::Role::Opening : FormulaNode::Role::Closing;
        node.directive =
            QStringLiteral("K%1").arg(100 * side + static_cast<int>(which) + 1, 3, 10, QChar(u'0'));
        node.text = text_[next_++];
        add(group, std::move(node), index);
    }

    FormulaText& source_;
    const QString& text_;
    qsizetype next_ = 0;
    int depth_ = 0;
    bool upright_ = false;
};

} // namespace

FormulaNode readFormula(FormulaText& source) {
    if (source.text().size() > kMaxFormulaLength) {
        source.fault(0, QStringLiteral("cette formule est trop longue : la partager"));
        return {};
    }
    return FormulaReader(source).read();
}

} // namespace authoring
