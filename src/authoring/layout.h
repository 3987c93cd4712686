#pragma once

#include "authoring/document.h"
#include "authoring/inlines.h"
#include "authoring/paragraph.h"

namespace authoring {

/// Where blocks are laid out.
enum class Place {
    Main,   ///< the column of a page or a question
    Margin, ///< the illustration area
    Band,   ///< the title band
    Frame   ///< within a tinted frame
};

/// Lays blocks out one below the other, in the rhythm of the house's pages.
class Layout {
public:
    Layout(Writer& writer, Texts& texts, Place place, const Column& column, const Style& style)
        : writer_(writer), texts_(texts), place_(place), column_(column), style_(style) {}

    void blocks(const std::vector<Block>& blocks);

    /// A frame in a tint of closed table rows, around blocks.
    void frame(const std::vector<Block>& blocks, int tint);

    /// The choices of a question, by their task marks; `directive` places one.
    void choices(const Block& list, const QString& directive);

private:
    enum class Flow { Start, Title, Heading, Text, Item, Wide };

    void block(const Block& block, const Block* next);
    void leave(Flow flow, const char* spaceBefore);
    void skip(const char* lines);

    void heading(const Block& block);
    void ornament(const Block& block);
    void paragraph(const Block& block, const Label* label = nullptr);
    void text(const std::vector<Inline>& inlines, const Label* label = nullptr);
    void hanging(const std::vector<Inline>& inlines);
    void displayFormula(const Inline& formula, bool framed);
    void severalLines(const std::vector<TextLine>& lines, bool framed);
    void frameOfFormula(int width, int inside, int pad);
    void picture(const Inline& picture);
    void describe(const Inline& picture, const QString& file);
    void menu(const Inline& menu, const Block* entries);
    QStringList menuEntries(const Inline& menu, const Block* entries);
    void list(const Block& list);
    int numberIndent(const Block& list) const;
    void item(const Block& item, const QString& bullet, int indent);
    void quote(const Block& block);
    void code(const Block& block);
    void raw(const Block& block);
    void html(const Block& block);
    void rule(const Block& block);
    void table(const Block& block);

    bool inFlow() const { return place_ == Place::Main || place_ == Place::Margin; }
    void fault(std::size_t at, const char16_t* sentence);
    int areaRight() const { return column_.right + (place_ == Place::Margin ? 6 : 0); }

    Writer& writer_;
    Texts& texts_;
    Place place_;
    Column column_;
    Style style_;
    Flow flow_ = Flow::Start;
    int listDepth_ = 0;
    bool skipNext_ = false;
};

/// What a quote is, by its first words in bold.
enum class QuoteKind { Frame, Margin, Band };
struct QuoteForm {
    QuoteKind kind = QuoteKind::Frame;
    int tint = 2;
};
QuoteForm quoteForm(const Block& quote);

/// The blocks of a margin or band quote without the words that tell so.
std::vector<Block> withoutName(const Block& quote);

} // namespace authoring
