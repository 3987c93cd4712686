#include "authoring/layout.h"
#include "markup/directive_table.h"

#include <algorithm>
#include <span>

// Quotes, listings, the author's own directives, comments and rules.

namespace authoring {

namespace {

// Around the text of a frame, in pixels.
constexpr int kFrameAbove = 8;
constexpr int kFrameBelow = 6;
constexpr int kCellMargin = 8;
constexpr int kRuleBelow = 9;

/// Tints of "FINTAC".
constexpr int kGreenTint = 1;
constexpr int kCreamTint = 2;
constexpr int kBlueTint = 4;
constexpr int kOrangeTint = 5;

/// Pixels that a blank at the start of a listing's line moves its text.
constexpr int kIndentPx = 7;

struct Name {
    QStringView words;
    QuoteForm form;
};
constexpr Name kNames[] = {
    {u"à retenir", {QuoteKind::Frame, kBlueTint}},
    {u"attention", {QuoteKind::Frame, kOrangeTint}},
    {u"définition", {QuoteKind::Frame, kCreamTint}},
    {u"exemple", {QuoteKind::Frame, kCreamTint}},
    {u"pour aller plus loin", {QuoteKind::Frame, kGreenTint}},
    {u"en marge", {QuoteKind::Margin, 0}},
    {u"bandeau", {QuoteKind::Band, 0}},
};

/// A misspelt directive draws nothing; so does a heading below a block that was never closed.
bool isUnknownDirective(const QString& line) {
    if (!line.startsWith(QStringLiteral("##")))
        return false;
    const std::span<const markup::Directive> table = markup::directiveTable();
    return std::none_of(table.begin(), table.end(), [&](const markup::Directive& directive) {
        return directive.matches(QStringView(line).sliced(2));
    });
}

/// The first words of a quote when they are bold; empty otherwise.
QString boldStart(const Block& quote) {
    if (quote.children.empty() || quote.children.front().inlines.empty())
        return {};
    const Inline& first = quote.children.front().inlines.front();
    return first.kind == Inline::Kind::Strong ? plainText(first.children) : QString();
}

} // namespace

QuoteForm quoteForm(const Block& quote) {
    QString words = boldStart(quote).replace(QChar(0xA0), u' ').toLower().trimmed();
    while (words.endsWith(u'.') || words.endsWith(u':') || words.endsWith(u'!') ||
           words.endsWith(u' '))
        words.chop(1);
    for (const Name& name : kNames)
        if (words == name.words)
            return name.form;
    return {};
}

std::vector<Block> withoutName(const Block& quote) {
    std::vector<Block> blocks = quote.children;
    std::vector<Inline>& inlines = blocks.front().inlines;
    inlines.erase(inlines.begin());
    if (inlines.empty())
        blocks.erase(blocks.begin());
    return blocks;
}

void Layout::quote(const Block& block) {
    const std::vector<Block>& inside = block.children;
    const bool onlyFormula = inside.size() == 1 && inside.front().inlines.size() == 1 &&
                             inside.front().inlines.front().kind == Inline::Kind::DisplayFormula;
    if (onlyFormula && inFlow() && listDepth_ == 0)
        return displayFormula(inside.front().inlines.front(), true);
    if (inside.empty())
        fault(block.at, u"ce cadre est vide");
    const QuoteForm form = quoteForm(block);
    if (form.kind != QuoteKind::Frame)
        return fault(block.at, u"la marge et le bandeau s’écrivent au premier niveau d’une page");
    frame(inside, form.tint);
}

void Layout::frame(const std::vector<Block>& blocks, int tint) {
    const std::size_t at = blocks.empty() ? 0 : blocks.front().at;
    if (!inFlow() || listDepth_ > 0)
        return fault(at, u"un cadre ne va ni dans un cadre ni dans une liste");
    leave(Flow::Wide, "0.5");
    writer_.style(style_);
    writer_.directive(QStringLiteral("##TAB") + threeDigits(0) + threeDigits(areaRight()) +
                      QStringLiteral(" 1"));
    writer_.movePenY(kFrameAbove);
    const int left = kCellMargin;
    Layout inside(writer_, texts_, Place::Frame, {left, areaRight() - kCellMargin, left}, style_);
    inside.blocks(blocks);
    writer_.style(style_);
    writer_.movePenY(kFrameBelow);
    writer_.directive(QStringLiteral("##FINTAC") +
                      QStringLiteral("%1").arg(tint, 2, 10, QChar(u'0')));
    writer_.movePenY(4);
}

/// Lines as they stand: nothing is broken or composed.
void Layout::code(const Block& block) {
    if (!inFlow() || listDepth_ > 0)
        return fault(block.at, u"un programme ne va ni dans un cadre ni dans une liste");
    leave(Flow::Wide, "0.5");
    writer_.directive(QStringLiteral("##TAB") + threeDigits(0) + threeDigits(areaRight()) +
                      QStringLiteral(" 1"));
    writer_.movePenY(kFrameAbove);
    const Column column{kCellMargin, areaRight() - kCellMargin, kCellMargin};
    for (const CodeLine& line : block.lines) {
        QString rest = line.text;
        int blanks = 0;
        for (; rest.startsWith(u' ') || rest.startsWith(u'\t'); rest.remove(0, 1))
            blanks += rest.startsWith(u'\t') ? 4 : 1;
        const Inline whole{Inline::Kind::Text, line.at, rest.replace(u' ', QChar(0xA0)), {}, {}};
        const Column indented = column.indented(blanks * kIndentPx);
        std::vector<TextLine> lines = breakLines(flatten({whole}, style_, texts_), indented.width(),
                                                 texts_.ruler, texts_.faults);
        if (lines.empty())
            lines.push_back({{}, 0, 0, 0, line.at});
        writeLines(writer_, lines, indented, Placed::Left, style_);
    }
    writer_.movePenY(kFrameBelow);
    writer_.directive(QStringLiteral("##FINTAC02"));
    writer_.movePenY(4);
}

/// What the author's directives leave behind is unknown, so that all is set anew.
void Layout::raw(const Block& block) {
    leave(Flow::Text, "0.2");
    writer_.style(style_);
    for (const CodeLine& line : block.lines) {
        writer_.comesFrom(line.at);
        if (isUnknownDirective(line.text))
            texts_.faults.add(line.at, "« " + line.text +
                                           " » n’est pas une directive ; un bloc finit "
                                           "par une ligne ```");
        writer_.raw(line.text);
    }
    for (const char* line : {"##FONT00", "##BOL0", "##ITA0", "##UND0", "##C000", "##ALGA"})
        writer_.directive(QLatin1String(line));
    Style known = style_;
    known.bold = known.italic = false;
    known.ink = kBlackInk;
    known.points = 0;
    writer_.forgetStyle(known);
    writer_.style(style_);
    writer_.penX(column_.penLeft);
}

/// Comments are for authors; other HTML has no meaning here.
void Layout::html(const Block& block) {
    QString text;
    for (const CodeLine& line : block.lines)
        text += line.text + u'\n';
    text = text.trimmed();
    const qsizetype end = text.indexOf(QStringLiteral("-->"));
    if (!text.startsWith(QStringLiteral("<!--")) || end < 0 || end + 3 != text.size())
        fault(block.at, u"une page ne contient pas de HTML, sinon des commentaires <!-- … --> "
                        u"seuls sur leurs lignes ; un signe « < » s’écrit « \\< »");
}

void Layout::rule(const Block&) {
    if (!inFlow())
        return;
    leave(Flow::Start, "1");
    Style style = style_;
    style.ink = kRuleInk;
    writer_.style(style);
    if (column_.left != column_.penLeft)
        writer_.penX(column_.left);
    writer_.directive(QStringLiteral("##LARGEUR") + threeDigits(column_.width()));
    writer_.directive(QStringLiteral("##RECT000"));
    writer_.style(style_);
    writer_.movePenY(kRuleBelow);
    if (column_.left != column_.penLeft)
        writer_.penX(column_.penLeft);
}

} // namespace authoring
