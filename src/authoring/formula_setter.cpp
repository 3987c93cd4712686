#include "authoring/formula_setter.h"

#include "authoring/script_signs.h"
#include "authoring/writer.h"
#include "page/twips.h"

#include <cmath>

namespace authoring {

namespace {

using Kind = FormulaNode::Kind;
using Role = FormulaNode::Role;
using page::kTwipsPerPixel;

// What signs need beyond their line, in pixels, and the room left beside a fraction.
constexpr int kExponentRise = 3;
constexpr int kStackedDrop = 3;
constexpr int kMarkRise = 4;
constexpr int kFractionRoom = 2;
/// What signs beyond the line keep from the bar of their fraction.
constexpr int kBarRoom = 2;
/// An index stays within its line, but would touch the bar below it.
constexpr int kBelowIndex = 3;
/// Beside a bar or an arrow, which reach beyond their letters.
constexpr int kMarkRoom = 2;

/// Scripts are two points smaller from ten points on, as the directives have it.
constexpr int kSmallestReduced = 10;
constexpr int kReduction = 2;

Style reduced(Style style) {
    if (style.points >= kSmallestReduced)
        style.points -= kReduction;
    return style;
}

class Setter {
public:
    Setter(FormulaText& source, const Style& style, const Ruler& ruler)
        : source_(source), style_(style), ruler_(ruler) {
        style_.italic = false;
        style_.link = -1;
    }

    /// One box for each part between two places where a line may break.
    std::vector<Box> boxes(const FormulaNode& formula) {
        std::vector<Box> boxes(1);
        row(formula.children, boxes, true);
        if (boxes.back().pieces.empty())
            boxes.pop_back();
        return boxes;
    }

private:
    Box inner(const FormulaNode& group) {
        std::vector<Box> boxes(1);
        row(group.children, boxes, false);
        return std::move(boxes.front());
    }

    void row(const std::vector<FormulaNode>& nodes, std::vector<Box>& boxes, bool breakable) {
        Role before = Role::Opening; // a sign at the start is of the number after it
        for (std::size_t i = 0; i < nodes.size(); ++i) {
            const FormulaNode& node = nodes[i];
            const bool single = nodes.size() == 1;
            const bool last = i + 1 == nodes.size();
            if (node.kind == Kind::Group) {
                row(node.children, boxes, breakable);
                if (!node.children.empty())
                    before = node.children.back().role;
                continue;
            }
            const bool unary =
                node.role == Role::Binary &&
                (before == Role::Opening || before == Role::Relation || before == Role::Binary ||
                 before == Role::Slash || before == Role::Separator);
            const bool spaced =
                !single && !unary && (node.role == Role::Binary || node.role == Role::Relation);
            const bool arrow = node.kind == Kind::Arrow;
            if (spaced && !boxes.back().pieces.empty())
                blank(boxes.back());
            this->node(boxes.back(), node);
            if (node.role == Role::Function && !last && nodes[i + 1].role != Role::Opening)
                blank(boxes.back());
            if (spaced && !last) {
                if (breakable && (arrow || node.role == Role::Relation))
                    boxes.emplace_back();
                else
                    blank(boxes.back());
            }
            before = unary ? Role::Relation : node.role;
            if (!last && !spaced)
                keepApart(boxes.back(), node, nodes[i + 1]);
        }
    }

    /// Letters lean into an upright sign behind them; marks reach into it, and into each other.
    void keepApart(Box& box, const FormulaNode& node, const FormulaNode& next) {
        const auto stands = [](const FormulaNode& sign, QStringView signs, bool first) {
            return sign.kind == Kind::Sign && !sign.italic && !sign.text.isEmpty() &&
                   signs.contains(first ? sign.text.front() : sign.text.back());
        };
        const bool before = stands(node, u"([{|‖", false);
        const bool behind = stands(next, u"′)]}|‖", true);
        if (isMarked(node) && isMarked(next))
            return move(box, "PIX", 2 * kMarkRoom);
        if ((before && isMarked(next)) || (behind && isMarked(node)))
            return move(box, "PIX", kMarkRoom);
        if (behind && node.kind == Kind::Sign && node.italic && !node.text.isEmpty())
            move(box, "PIX", overhang(node.text.back()));
    }
    static bool isMarked(const FormulaNode& node) {
        return node.kind == Kind::Marked ||
               (node.kind == Kind::Scripts && node.children[0].kind == Kind::Marked);
    }
    /// Of letters in italics, as the face has it, in pixels.
    int overhang(QChar letter) const {
        static constexpr QStringView kWide = u"FKTVWYvwyγζτ";
        constexpr double kPixelsAPoint = 96.0 / 72;
        const double ems = letter == u'f' ? 0.12 : kWide.contains(letter) ? 0.055 : 0;
        return static_cast<int>(std::lround(ems * kPixelsAPoint * style_.points));
    }

    void blank(Box& box) { text(box, {QString(QChar(0xA0)), false}); }

    Style slant(bool italic) const {
        Style style = style_;
        style.italic = italic;
        return style;
    }

    void text(Box& box, const Slanted& run) {
        if (run.text.isEmpty())
            return;
        const Style style = slant(run.italic);
        box.add({style, run.text, false, ruler_.width(style, run.text)});
    }

    void directive(Box& box, const QString& line, double width, bool italic = false) {
        box.add({slant(italic), QStringLiteral("##") + line, true, width});
    }

    void move(Box& box, const char* keyword, int pixels) {
        if (pixels == 0)
            return;
        const QString number = pixels < 0 ? QStringLiteral("-%1").arg(-pixels, 2, 10, QChar(u'0'))
                                          : threeDigits(pixels);
        const bool sideways = keyword[2] == 'X';
        directive(box, QLatin1String(keyword) + number, sideways ? pixels * kTwipsPerPixel : 0);
    }

    void node(Box& box, const FormulaNode& node) {
        switch (node.kind) {
        case Kind::Sign:
            return text(box, {node.text, node.italic});
        case Kind::Scripts:
            return scripts(box, node);
        case Kind::Fraction:
            return fraction(box, node);
        case Kind::Root:
            return root(box, node);
        case Kind::Marked:
            return marked(box, node);
        case Kind::Tall:
            return tall(box, node);
        case Kind::Arrow: {
            const double height = ruler_.height(style_);
            return directive(box, node.directive, 2 * height + kTwipsPerPixel);
        }
        case Kind::Group:
            return;
        }
    }

    void script(Box& box, const char* keyword, const std::vector<Slanted>& runs) {
        for (const Slanted& run : runs) {
            const double width = ruler_.width(reduced(slant(run.italic)), run.text);
            directive(box, QLatin1String(keyword) + run.text, width, run.italic);
        }
    }

    void scripts(Box& box, const FormulaNode& node) {
        const FormulaNode& base = node.children[0];
        if (base.kind == Kind::Group)
            box.append(inner(base));
        else
            this->node(box, base);
        const ScriptSigns lower(node.children[1], source_);
        const ScriptSigns upper(node.children[2], source_);
        if (base.kind == Kind::Tall)
            return tallExponent(box, lower, upper);
        if (!upper.isEmpty())
            box.rise = std::max(box.rise, kExponentRise);
        if (!upper.isEmpty() && base.kind == Kind::Marked)
            move(box, "PIX", kMarkRoom);
        const bool both = !lower.isEmpty() && !upper.isEmpty();
        if (both && lower.isStackable() && upper.isStackable())
            return stacked(box, lower, upper, base.empty());
        script(box, "IND", lower.runs());
        script(box, "EXP", upper.runs());
    }

    /// Signs one above the other, as many as both have; the rest of the longer one behind, or, when
    /// the scripts stand before their symbol, in front.
    void stacked(Box& box, const ScriptSigns& lower, const ScriptSigns& upper, bool before) {
        const qsizetype common = std::min(lower.size(), upper.size());
        const qsizetype low = before ? lower.size() - common : 0;
        const qsizetype high = before ? upper.size() - common : 0;
        box.drop = std::max(box.drop, kStackedDrop);
        if (before) {
            script(box, "IND", lower.runs(0, low));
            script(box, "EXP", upper.runs(0, high));
        }
        for (qsizetype i = 0; i < common; ++i) {
            const bool italic = ScriptSigns::slantOf(lower, low + i, upper, high + i);
            const Style small = reduced(slant(italic));
            const QString below(lower[low + i]);
            const QString above(upper[high + i]);
            directive(box, QStringLiteral("POLY") + below + above,
                      std::max(ruler_.width(small, below), ruler_.width(small, above)), italic);
        }
        if (!before) {
            script(box, "IND", lower.runs(common, lower.size()));
            script(box, "EXP", upper.runs(common, upper.size()));
        }
    }

    /// Behind a tall bracket scripts stand half a line further out.
    void tallExponent(Box& box, const ScriptSigns& lower, const ScriptSigns& upper) {
        if (lower.size() == 1 && upper.size() == 1)
            return stacked(box, lower, upper, false); // the bounds of an integral
        box.rise = std::max(box.rise, halfLine() + (upper.isEmpty() ? 0 : kMarkRise));
        if (!upper.isEmpty()) {
            directive(box, QStringLiteral("DECAHADEF"), 0);
            script(box, "EXP", upper.runs());
            directive(box, QStringLiteral("DECABADEF"), 0);
        }
        if (!lower.isEmpty()) {
            directive(box, QStringLiteral("DECABADEF"), 0);
            script(box, "IND", lower.runs());
            directive(box, QStringLiteral("DECAHADEF"), 0);
        }
    }

    int halfLine() const {
        return static_cast<int>(std::ceil(ruler_.height(style_) / 2 / kTwipsPerPixel));
    }

    void fraction(Box& box, const FormulaNode& node) {
        for (const FormulaNode& part : node.children)
            if (part.holds(Kind::Fraction) || part.holds(Kind::Tall))
                source_.fault(part.index,
                              QStringLiteral("une fraction dans une fraction ne se dessine pas : "
                                             "écrire l’une des deux avec « / »"));
        const Box upper = inner(node.children[0]);
        const Box lower = inner(node.children[1]);
        move(box, "PIX", kFractionRoom);
        if (isPlain(upper) && isPlain(lower) &&
            upper.pieces.front().style == lower.pieces.front().style)
            plainFraction(box, upper, lower);
        else
            styledFraction(box, upper, lower);
        move(box, "PIX", kFractionRoom);
        box.rise = std::max(box.rise, halfLine() + upper.rise);
        box.drop = std::max(box.drop, halfLine() + lower.drop);
    }

    /// Text of one style, which a single directive can hold.
    static bool isPlain(const Box& box) {
        return !box.pieces.empty() &&
               std::all_of(box.pieces.begin(), box.pieces.end(), [&](const Piece& piece) {
                   return !piece.directive && piece.style == box.pieces.front().style &&
                          !piece.line.contains(u'#');
               });
    }

    static QString textOf(const Box& box) {
        QString text;
        for (const Piece& piece : box.pieces)
            text += piece.line;
        return text;
    }

    void plainFraction(Box& box, const Box& upper, const Box& lower) {
        directive(box, QStringLiteral("FRAC") + textOf(upper) + u'#' + textOf(lower),
                  std::max(upper.width, lower.width) + 1, upper.pieces.front().style.italic);
    }

    void styledFraction(Box& box, const Box& upper, const Box& lower) {
        const double width = std::max(upper.width, lower.width);
        const auto indent = [&](const Box& part) {
            return static_cast<int>((width - part.width) / 2 / kTwipsPerPixel);
        };
        const int raised = roomBelow(upper);
        const int lowered = lower.rise > 0 ? lower.rise + kBarRoom : 0;
        Box set;
        directive(set, QStringLiteral("NUMERATEUR"), 0);
        move(set, "PIY", -raised);
        move(set, "PIX", indent(upper));
        set.append(upper);
        move(set, "PIY", raised);
        directive(set, QStringLiteral("DENOMINATEUR"), 0);
        move(set, "PIY", lowered);
        move(set, "PIX", indent(lower));
        set.append(lower);
        move(set, "PIY", -lowered);
        directive(set, QStringLiteral("FINFRAC"), 0);
        for (Piece& piece : set.pieces)
            piece.width = 0;
        set.pieces.back().width = width;
        set.width = width;
        set.rise = halfLine() + upper.rise + raised;
        set.drop = halfLine() + lower.drop + lowered;
        box.append(set);
    }

    static int roomBelow(const Box& box) {
        const bool hasIndex =
            std::any_of(box.pieces.begin(), box.pieces.end(), [](const Piece& piece) {
                return piece.directive && piece.line.startsWith(QStringLiteral("##IND"));
            });
        return box.drop > 0 ? box.drop + kBarRoom : hasIndex ? kBelowIndex : 0;
    }

    void root(Box& box, const FormulaNode& node) {
        if (node.children[0].holds(Kind::Root))
            source_.fault(node.index,
                          QStringLiteral("une racine dans une racine ne se dessine pas"));
        const Box content = inner(node.children[0]);
        const double line = ruler_.height(style_) / kTwipsPerPixel;
        // The sign is centred on its line. Its bar keeps off exponents; fractions have room enough.
        const int room = node.holds(Kind::Fraction) || content.rise == 0 ? 0 : kBarRoom;
        const double beyond = std::max(content.rise + room, content.drop);
        const double factor = std::ceil((1 + 2 * beyond / line) * 10) / 10;
        directive(box, QStringLiteral("SQD"), 1.5 * ruler_.width(slant(false), U'X'));
        box.append(content);
        directive(box, QStringLiteral("SQF%1").arg(factor, 0, 'g', 3), 0);
        const int over = static_cast<int>(std::ceil((factor - 1) * line / 2)) + 2;
        box.rise = std::max(box.rise, over);
        box.drop = std::max(box.drop, over - 1);
    }

    void marked(Box& box, const FormulaNode& node) {
        box.rise = std::max(box.rise, kMarkRise);
        const Slanted signs{node.text, node.italic};
        if (node.directive == u"CHAPEAU") {
            directive(box, node.directive, 0, node.italic);
            return text(box, signs);
        }
        directive(box, node.directive + node.text, ruler_.width(slant(node.italic), node.text),
                  node.italic);
    }

    void tall(Box& box, const FormulaNode& node) {
        // Widths of the signs with the room on either side, in heights of a line.
        const bool brace = node.directive.endsWith(u'2');
        const bool bracket = node.directive.endsWith(u'1');
        const double width = brace ? 0.6 : bracket ? 0.45 : 0.4;
        directive(box, node.directive, width * ruler_.height(style_));
        box.rise = std::max(box.rise, halfLine());
        box.drop = std::max(box.drop, halfLine());
    }

    FormulaText& source_;
    Style style_;
    const Ruler& ruler_;
};

} // namespace

void setFormula(const FormulaNode& formula, FormulaText& source, const Style& style,
                const Ruler& ruler, InlineText& out) {
    bool first = true;
    for (Box& box : Setter(source, style, ruler).boxes(formula)) {
        Atom atom;
        atom.style = style;
        atom.at = source.offset(0);
        if (!first) {
            atom.character = U' ';
            atom.weak = true;
            out.atoms.push_back(atom);
        }
        atom.weak = false;
        first = false;
        atom.kind = Atom::Kind::Box;
        atom.box = out.boxes.size();
        out.atoms.push_back(atom);
        out.boxes.push_back(std::move(box));
    }
}

} // namespace authoring
