#pragma once

#include "authoring/style.h"

#include <QString>

#include <algorithm>
#include <cstddef>
#include <vector>

namespace authoring {

/// A line of page language and what it takes of the line on the page.
struct Piece {
    Style style;
    QString line; ///< a text, or a directive with its "##"
    bool directive = false;
    double width = 0; ///< twips
};

/// Something that no line break parts: a formula, a symbol, a field.
struct Box {
    std::vector<Piece> pieces = {};
    double width = 0; ///< twips
    int rise = 0;     ///< pixels above the top of the line
    int drop = 0;     ///< pixels below the foot of the line

    void add(Piece piece) {
        width += piece.width;
        pieces.push_back(std::move(piece));
    }
    void append(const Box& other) {
        for (const Piece& piece : other.pieces)
            add(piece);
        rise = std::max(rise, other.rise);
        drop = std::max(drop, other.drop);
    }
};

/// A character or a box of a text that has yet to be broken into lines.
struct Atom {
    enum class Kind { Character, Box, Break };
    Kind kind = Kind::Character;
    char32_t character = 0;
    Style style;
    std::size_t box = 0; ///< index into the boxes of the text
    std::size_t at = 0;  ///< offset in the source
    bool weak = false;   ///< of a blank: the line breaks here only where it must

    bool isSpace() const { return kind == Kind::Character && character == U' '; }
};

/// A paragraph, flattened.
struct InlineText {
    std::vector<Atom> atoms = {};
    std::vector<Box> boxes = {};
    std::vector<QString> links = {}; ///< targets as page codes, or page numbers in a question
};

} // namespace authoring
