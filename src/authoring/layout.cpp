#include "authoring/layout.h"

#include "page/twips.h"

#include <algorithm>
#include <cmath>

namespace authoring {

namespace {

// Sizes of the house's headings, in points.
constexpr int kTitlePoints = 16;
constexpr int kOrnamentPoints = 36;

constexpr int kLowestHeading = 3;

// Where bullets and the text after them stand, from the left edge of the list, in pixels.
constexpr int kBulletLeft = 8;
constexpr int kBulletText = 22;
constexpr int kNumberText = 30;
constexpr int kMarginBulletText = 10;
constexpr int kNumberGap = 6; ///< at least, behind a number

/// Where the text after a symbol that opens a paragraph stands, in pixels.
constexpr int kSymbolText = 26;

// The choices of a question: room above each, left edge, text behind the button, in pixels.
constexpr int kChoiceAbove = 10;
constexpr int kChoiceLeft = 48;
constexpr int kChoiceText = 70;
constexpr double kChoiceAdvance = 270;

bool isDisplay(const Inline& element) {
    return element.kind == Inline::Kind::DisplayFormula;
}

bool isOnlyPicture(const std::vector<Inline>& inlines) {
    return inlines.size() == 1 && inlines.front().kind == Inline::Kind::Picture;
}

} // namespace

void Layout::fault(std::size_t at, const char16_t* sentence) {
    texts_.faults.add(at, QString::fromUtf16(sentence));
}

void Layout::skip(const char* lines) {
    writer_.style(style_);
    writer_.directive(QStringLiteral("##DECLIG") + QLatin1String(lines));
}

/// Space between what stands above and what follows; nothing above the first block, and nothing
/// below a heading, which has its own.
void Layout::leave(Flow flow, const char* spaceBefore) {
    const bool wantsRoom = flow_ != Flow::Start && flow_ != Flow::Title && flow_ != Flow::Heading;
    if (wantsRoom)
        skip(spaceBefore);
    flow_ = flow;
}

void Layout::blocks(const std::vector<Block>& blocks) {
    for (std::size_t i = 0; i < blocks.size(); ++i) {
        if (std::exchange(skipNext_, false))
            continue;
        writer_.comesFrom(blocks[i].at);
        block(blocks[i], i + 1 < blocks.size() ? &blocks[i + 1] : nullptr);
    }
}

void Layout::block(const Block& block, const Block* next) {
    using Kind = Block::Kind;
    switch (block.kind) {
    case Kind::Heading:
        return heading(block);
    case Kind::Paragraph:
        if (isOnlyPicture(block.inlines) && isPicture(block.inlines.front(), u"menu:"))
            return menu(block.inlines.front(), next);
        return paragraph(block);
    case Kind::Quote:
        return quote(block);
    case Kind::List:
        return list(block);
    case Kind::Table:
        return table(block);
    case Kind::Code:
        return block.info == u"directives" ? raw(block) : code(block);
    case Kind::Html:
        return html(block);
    case Kind::Rule:
        return rule(block);
    default:
        return blocks(block.children);
    }
}

void Layout::heading(const Block& block) {
    if (block.level > kLowestHeading)
        return fault(block.at, u"une page a trois niveaux de titres : #, ## et ###");
    if (place_ == Place::Margin && block.level == 1)
        return ornament(block);
    Style style = style_;
    style.bold = true;
    style.italic = block.level == 3 && place_ == Place::Main;
    const bool title = block.level == 1 && place_ == Place::Main;
    if (title) {
        style.points = kTitlePoints;
        style.ink = kTitleInk;
    }
    if (flow_ == Flow::Title)
        flow_ = Flow::Start;
    else if (flow_ == Flow::Heading)
        skip("0.2");
    leave(title ? Flow::Title : Flow::Heading, place_ == Place::Main ? "0.8" : "0.5");
    const InlineText text = flatten(block.inlines, style, texts_);
    if (text.atoms.empty())
        fault(block.at, u"ce titre n’a pas de texte");
    writeLines(writer_, breakLines(text, column_.width(), texts_.ruler, texts_.faults), column_,
               Placed::Left, style);
    if (place_ == Place::Main)
        skip(title ? "0.4" : "0.1");
}

/// The big word or sign at the head of the illustration area.
void Layout::ornament(const Block& block) {
    leave(Flow::Title, "0.5");
    Style style = style_;
    style.points = kOrnamentPoints;
    style.bold = true;
    style.ink = kTermInk;
    const InlineText text = flatten(block.inlines, style, texts_);
    writer_.directive(QStringLiteral("##RELIEF208"));
    writeLines(writer_, breakLines(text, column_.width(), texts_.ruler, texts_.faults), column_,
               Placed::Centre, style);
    writer_.directive(QStringLiteral("##RELIEF0"));
    skip("0.2");
}

void Layout::paragraph(const Block& block, const Label* label) {
    const std::vector<Inline>& inlines = block.inlines;
    if (isOnlyPicture(inlines) && !isPicture(inlines.front(), u"symbole:") &&
        !isPicture(inlines.front(), u"video:"))
        return picture(inlines.front());
    // Formulas on lines of their own part the text.
    auto from = inlines.begin();
    while (from != inlines.end()) {
        const auto formula = std::find_if(from, inlines.end(), isDisplay);
        text({from, formula}, std::exchange(label, nullptr));
        if (formula == inlines.end())
            break;
        displayFormula(*formula, false);
        from = formula + 1;
    }
}

void Layout::text(const std::vector<Inline>& inlines, const Label* label) {
    if (!label && inlines.size() > 1 && isPicture(inlines.front(), u"symbole:"))
        return hanging(inlines);
    const InlineText text =
        flatten(inlines, style_, texts_, place_ == Place::Band ? kTitleInk : kBlackInk);
    if (text.atoms.empty() && !label)
        return;
    leave(Flow::Text, "0.4");
    writer_.style(style_);
    std::vector<TextLine> lines = breakLines(text, column_.width(), texts_.ruler, texts_.faults);
    if (lines.empty())
        lines.push_back({{}, 0, 0, 0, text.atoms.empty() ? 0 : text.atoms.front().at});
    writeLines(writer_, lines, column_, Placed::Left, style_, label);
}

/// A paragraph that opens with a symbol: the text stands to its right.
void Layout::hanging(const std::vector<Inline>& inlines) {
    Label label{column_.left, {}};
    const InlineText symbol = flatten({inlines.front()}, style_, texts_);
    for (const Box& box : symbol.boxes)
        label.box.append(box);
    const Column before = column_;
    column_ = column_.indented(kSymbolText);
    text({inlines.begin() + 1, inlines.end()}, &label);
    column_ = before;
}

void Layout::list(const Block& list) {
    const bool narrow = place_ == Place::Margin;
    const int indent = list.ordered ? numberIndent(list) : narrow ? kMarginBulletText : kBulletText;
    leave(Flow::Item, listDepth_ == 0 ? "0.3" : "0.1");
    ++listDepth_;
    int number = list.level;
    for (const Block& item : list.children) {
        if (item.task != Block::Task::None)
            fault(item.at, u"les cases à cocher ne vont que dans une question");
        if (&item != &list.children.front() && !list.tight)
            skip("0.3");
        this->item(item,
                   list.ordered      ? QString::number(number++) + QLatin1Char(list.delimiter)
                   : listDepth_ == 1 ? QStringLiteral("•")
                                     : QStringLiteral("–"),
                   indent);
    }
    --listDepth_;
    flow_ = Flow::Item;
}

/// The text stands behind the widest number.
int Layout::numberIndent(const Block& list) const {
    const bool narrow = place_ == Place::Margin;
    const auto last = list.level + static_cast<int>(list.children.size()) - 1;
    const double width =
        texts_.ruler.width(style_, QString::number(last) + QLatin1Char(list.delimiter));
    const int number = static_cast<int>(std::ceil(width / page::kTwipsPerPixel)) + kNumberGap;
    return narrow ? std::max(kMarginBulletText, number)
                  : std::max(kNumberText, kBulletLeft + number);
}

void Layout::item(const Block& item, const QString& bullet, int indent) {
    writer_.style(style_);
    const Column before = column_;
    Label label{column_.left + (place_ == Place::Margin ? 0 : kBulletLeft), {}};
    label.box.add({style_, bullet, false, texts_.ruler.width(style_, bullet)});
    column_ = column_.indented(indent);
    const bool startsWithText =
        !item.children.empty() && item.children.front().kind == Block::Kind::Paragraph;
    flow_ = Flow::Start;
    if (startsWithText) {
        writer_.comesFrom(item.children.front().at);
        paragraph(item.children.front(), &label);
        blocks({item.children.begin() + 1, item.children.end()});
    } else {
        if (!item.children.empty())
            fault(item.at, u"un point d’une liste commence par du texte");
        blocks(item.children);
    }
    column_ = before;
    flow_ = Flow::Item;
}

void Layout::choices(const Block& list, const QString& directive) {
    const Column before = column_;
    for (const Block& choice : list.children) {
        writer_.style(style_);
        writer_.movePenY(kChoiceAbove);
        Label label{kChoiceLeft, {}};
        label.box.add({style_, directive, true, kChoiceAdvance});
        column_ = {kChoiceText, before.right, before.penLeft};
        flow_ = Flow::Start;
        for (const Block& child : choice.children) {
            if (child.kind != Block::Kind::Paragraph || &child != &choice.children.front()) {
                fault(child.at, u"un choix tient en un paragraphe");
                continue;
            }
            writer_.comesFrom(child.at);
            paragraph(child, &label);
        }
        if (choice.children.empty())
            fault(choice.at, u"ce choix n’a pas de texte");
    }
    column_ = before;
    flow_ = Flow::Item;
}

} // namespace authoring
