#include "authoring/formula_signs.h"

#include <algorithm>
#include <iterator>

namespace authoring {

namespace {

using Kind = FormulaNode::Kind;
using Role = FormulaNode::Role;

constexpr QStringView kStates[] = {u"(s)", u"(l)", u"(g)", u"(aq)"};

struct ArrowForm {
    QStringView typed;
    QStringView directive;
};
/// Longest first.
constexpr ArrowForm kArrows[] = {
    {u"<=>", u"K004"}, {u"<->", u"K004"}, {u"->", u"K104"}, {u"→", u"K104"}, {u"⇌", u"K004"}};

class ChemistryReader {
public:
    ChemistryReader(FormulaText& source, qsizetype first, qsizetype last)
        : source_(source), text_(QStringView(source.text()).first(last)), next_(first) {}

    FormulaNode read() {
        FormulaNode all;
        all.index = next_;
        while (!atEnd())
            element(all);
        return all;
    }

private:
    bool atEnd() const { return next_ >= text_.size(); }
    QChar peek(qsizetype ahead = 0) const {
        return next_ + ahead < text_.size() ? text_[next_ + ahead] : QChar();
    }
    bool isNext(QStringView word) const { return text_.sliced(next_).startsWith(word); }
    bool blankOrEnd(qsizetype ahead) const {
        return next_ + ahead >= text_.size() || peek(ahead).isSpace();
    }

    void sign(FormulaNode& all, const QString& text, Role role = Role::Ordinary,
              bool italic = false) {
        FormulaNode node;
        node.kind = Kind::Sign;
        node.text = text;
        node.role = role;
        node.italic = italic;
        node.index = next_;
        all.children.push_back(std::move(node));
    }
    void blank(FormulaNode& all) { sign(all, QString(QChar(0xA0))); }

    void element(FormulaNode& all) {
        const QChar c = peek();
        if (c.isSpace())
            return blanks(all);
        if (arrow(all) || state(all))
            return;
        if (c.isDigit())
            return digits(all);
        if (c == u'^' || c == u'_')
            return script(all);
        if (c == u'+' || c == u'-' || c == u'−')
            return plusOrMinus(all);
        if (c.isLetter())
            return symbol(all);
        if (c == u'\\')
            return command(all);
        other(all, c);
    }

    void blanks(FormulaNode& all) {
        while (!atEnd() && peek().isSpace())
            ++next_;
        const bool gas = peek() == u'^' && blankOrEnd(1);
        const bool solid = peek() == u'v' && blankOrEnd(1);
        if (gas || solid) {
            sign(all, gas ? QStringLiteral("\u00A0↑") : QStringLiteral("\u00A0↓"));
            ++next_;
        } else if (!startOfSpecies_ && !atEnd() && !isOperatorNext()) {
            blank(all);
        }
        startOfSpecies_ = true;
    }
    bool isOperatorNext() const {
        if ((peek() == u'+' || peek() == u'-' || peek() == u'=') && blankOrEnd(1))
            return true;
        return std::any_of(std::begin(kArrows), std::end(kArrows),
                           [this](const ArrowForm& form) { return isNext(form.typed); });
    }

    bool arrow(FormulaNode& all) {
        for (const ArrowForm& form : kArrows) {
            if (!isNext(form.typed))
                continue;
            FormulaNode node;
            node.kind = Kind::Arrow;
            node.role = Role::Relation;
            node.directive = form.directive.toString();
            node.index = next_;
            all.children.push_back(std::move(node));
            next_ += form.typed.size();
            startOfSpecies_ = true;
            if (peek() == u'[')
                fault(QStringLiteral("rien ne s’écrit sur la flèche d’une réaction"));
            return true;
        }
        return false;
    }

    bool state(FormulaNode& all) {
        for (const QStringView form : kStates)
            if (isNext(form)) {
                sign(all, form.toString());
                next_ += form.size();
                startOfSpecies_ = false;
                return true;
            }
        return false;
    }

    QString takeDigits() {
        QString digits;
        while (!atEnd() && peek().isDigit())
            digits += text_[next_++];
        return digits;
    }

    /// A number before a formula counts molecules, one behind a symbol atoms.
    void digits(FormulaNode& all) {
        const qsizetype index = next_;
        QString number = takeDigits();
        if (!startOfSpecies_)
            return setScript(all, index, false, scriptSigns(number, false));
        if ((peek() == u'/' || peek() == u',') && peek(1).isDigit()) {
            number += text_[next_++];
            number += takeDigits();
        }
        sign(all, number);
        while (!atEnd() && peek().isSpace())
            ++next_;
        if (!atEnd())
            blank(all);
    }

    void symbol(FormulaNode& all) {
        const qsizetype index = next_;
        QString symbol(text_[next_++]);
        if (symbol[0].isUpper()) {
            while (!atEnd() && peek().isLower())
                symbol += text_[next_++];
        }
        const bool variable = startOfSpecies_ && symbol[0].isLower() && isFormulaNext();
        sign(all, symbol, Role::Ordinary, variable);
        all.children.back().index = index;
        startOfSpecies_ = false;
        if (variable && !peek().isSpace()) {
            blank(all);
            startOfSpecies_ = true;
        }
    }
    /// A small letter counts what comes behind it ("n H2O"); alone it is a particle ("n", "p",
    /// "e").
    bool isFormulaNext() const {
        qsizetype at = next_;
        while (at < text_.size() && text_[at].isSpace())
            ++at;
        return at < text_.size() && (text_[at].isUpper() || text_[at] == u'(' || text_[at] == u'[');
    }

    /// "\\gamma": a sign of the formula's commands.
    void command(FormulaNode& all) {
        const qsizetype index = next_++;
        QString name;
        while (!atEnd() && peek().isLetter() && peek().unicode() < 128)
            name += text_[next_++];
        const auto named = signOfCommand(name);
        if (!named || name.isEmpty())
            return source_.fault(index,
                                 QStringLiteral("« \\%1 » n’est pas lu dans \\ce").arg(name));
        sign(all, named->text);
        startOfSpecies_ = false;
    }

    void script(FormulaNode& all) {
        const qsizetype index = next_;
        const bool exponent = text_[next_++] == u'^';
        QString content;
        if (peek() == u'{') {
            const qsizetype close = text_.indexOf(u'}', next_);
            if (close < 0) {
                fault(QStringLiteral("« { » sans « } » qui la ferme"));
                next_ = text_.size();
                return;
            }
            content = text_.sliced(next_ + 1, close - next_ - 1).toString();
            next_ = close + 1;
        } else {
            content = takeDigits();
            if (content.isEmpty() && !atEnd() && peek() != u'+' && peek() != u'-')
                content = text_[next_++];
            if (exponent && (peek() == u'+' || peek() == u'-'))
                content += text_[next_++];
        }
        if (content.trimmed().isEmpty() || content.contains(u'\\') || content.contains(u'^') ||
            content.contains(u'_') || content.contains(u'{'))
            source_.fault(index, QStringLiteral("un indice ou un exposant ne contient que des "
                                                "lettres, des chiffres et des signes"));
        setScript(all, index, exponent, scriptSigns(content, startOfSpecies_));
    }

    void setScript(FormulaNode& all, qsizetype index, bool exponent, FormulaNode content) {
        FormulaNode& place = scriptsOf(all, index).children[exponent ? 2 : 1];
        if (!place.empty())
            source_.fault(index, QStringLiteral("deux indices ou deux exposants de suite"));
        place = std::move(content);
    }

    /// The scripts of what stands last; of nothing, at the start of a formula.
    FormulaNode& scriptsOf(FormulaNode& all, qsizetype index) {
        if (!all.children.empty() && all.children.back().kind == Kind::Scripts &&
            !(startOfSpecies_ && !all.children.back().children[0].empty()))
            return all.children.back();
        FormulaNode scripts;
        scripts.kind = Kind::Scripts;
        scripts.index = index;
        scripts.children.resize(3);
        if (!startOfSpecies_ && !all.children.empty()) {
            scripts.children[0] = std::move(all.children.back());
            all.children.pop_back();
        }
        all.children.push_back(std::move(scripts));
        return all.children.back();
    }

    /// A lone small letter is a number that is not told, in italics as all quantities; so are the
    /// capitals before a nuclide.
    static FormulaNode scriptSigns(QString text, bool beforeSymbol) {
        text.replace(u'-', QChar(0x2212)).remove(u' ');
        FormulaNode group;
        for (qsizetype i = 0; i < text.size(); ++i) {
            const bool isAlone = !(i > 0 && text[i - 1].isLetter()) &&
                                 !(i + 1 < text.size() && text[i + 1].isLetter());
            FormulaNode node;
            node.kind = Kind::Sign;
            node.text = text[i];
            node.italic = isAlone && (beforeSymbol ? text[i].isUpper() : text[i].isLower());
            group.children.push_back(std::move(node));
        }
        return group;
    }

    /// A sign that touches a formula is its charge; one between blanks adds.
    void plusOrMinus(FormulaNode& all) {
        const QString shown = peek() == u'+' ? QStringLiteral("+") : QStringLiteral("−");
        const qsizetype index = next_;
        if (startOfSpecies_) {
            sign(all, shown, Role::Binary);
            ++next_;
            return;
        }
        ++next_;
        if (!atEnd() && peek().isLetter() && shown == u"−") {
            sign(all, QStringLiteral("–")); // a bond
            return;
        }
        // After states this would be "(aq)+": a forgotten blank.
        const FormulaNode& last = all.children.back();
        if (last.kind == Kind::Sign && last.text.startsWith(u'('))
            source_.fault(index,
                          QStringLiteral("mettre un blanc avant et après « %1 »").arg(shown));
        complainAboutCharge(scriptsOf(all, index), index);
        setScript(all, index, true, scriptSigns(shown, false));
    }

    /// "Ca2+" reads as two calcium atoms with one charge between them, which nobody means.
    void complainAboutCharge(const FormulaNode& scripts, qsizetype index) {
        const FormulaNode& base = scripts.children[0];
        const bool single = base.kind == Kind::Sign && !base.text.isEmpty() &&
                            base.text[0].isUpper() && aloneFrom(scripts);
        if (single && !scripts.children[1].empty() && scripts.children[2].empty())
            source_.fault(index,
                          QStringLiteral("la charge d’un ion simple s’écrit « %1^%2 » : sans le "
                                         "signe « ^ », le chiffre compte les atomes")
                              .arg(base.text, textOf(scripts.children[1]) + source_.text()[index]));
    }
    static QString textOf(const FormulaNode& group) {
        QString text;
        for (const FormulaNode& node : group.children)
            text += node.text;
        return text;
    }
    /// Whether the element stands alone between blanks.
    bool aloneFrom(const FormulaNode& scripts) const {
        const qsizetype start = scripts.children[0].index;
        return start == 0 || !source_.text()[start - 1].isLetter();
    }

    void other(FormulaNode& all, QChar c) {
        const qsizetype index = next_++;
        if (c == u'(' || c == u'[') {
            sign(all, QString(c), Role::Opening);
            startOfSpecies_ = false;
        } else if (c == u')' || c == u']') {
            sign(all, QString(c), Role::Closing);
            startOfSpecies_ = false;
        } else if (c == u'*' || c == u'.' || c == u'·') {
            sign(all, QStringLiteral("·"));
            startOfSpecies_ = true;
        } else if (c == u'=') {
            sign(all, QStringLiteral("="), startOfSpecies_ ? Role::Relation : Role::Ordinary);
        } else if (c == u'#') {
            sign(all, QStringLiteral("≡"));
        } else {
            source_.fault(index, QStringLiteral("« %1 » n’est pas lu dans \\ce").arg(c));
        }
    }

    void fault(const QString& sentence) { source_.fault(next_, sentence); }

    FormulaText& source_;
    QStringView text_;
    qsizetype next_;
    bool startOfSpecies_ = true;
};

} // namespace

FormulaNode readChemistry(FormulaText& source, qsizetype first, qsizetype last) {
    return ChemistryReader(source, first, last).read();
}

} // namespace authoring
