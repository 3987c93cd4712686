#pragma once

#include "authoring/inline_text.h"
#include "authoring/positions.h"

namespace authoring {

/// Writes lines of page language. Styles are switched when a text needs them, not before.
class Writer {
public:
    explicit Writer(const Positions& positions) : positions_(positions) {}

    /// The lines that follow come from here.
    void comesFrom(std::size_t offset) { at_ = offset; }

    void directive(const QString& line);
    /// The size, weight, ink and face that a style asks for.
    void style(const Style& style);
    /// A style that nothing says is in force already: a surface was chosen, or a page wrote its own
    /// directives.
    void forgetStyle(const Style& known) { style_ = known; }

    void piece(const Piece& piece);
    /// Ends the line on the page, in the face and size of `base`.
    void endLine(const Style& base);
    void movePenY(int pixels);
    /// Pixels from the left edge.
    void penX(int pixels);

    /// What was written. `raw` lines stand as the author wrote them.
    CompiledText text() const;
    void raw(const QString& line);

private:
    void text(const QString& line);
    void line(const QString& line);

    const Positions& positions_;
    std::size_t at_ = 0;
    Style style_;
    std::vector<std::string> lines_;
    std::vector<int> places_;
    bool lastIsText_ = false;
};

/// "007": the last three digits count, so a number is held between 0 and 999.
QString threeDigits(int number);

} // namespace authoring
