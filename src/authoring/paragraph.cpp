#include "authoring/paragraph.h"

#include "page/twips.h"

#include <cmath>

namespace authoring {

namespace {

using page::kTwipsPerPixel;

/// The room above and below the letters that the line spacing leaves anyway, in pixels.
constexpr int kSlack = 3;

/// Atoms from `first` to before `last`, parted nowhere, and the blank before them.
struct Word {
    std::size_t first;
    std::size_t last;
    double width = 0;
    double blank = 0; ///< width of the blank before it
    bool newLine = false;
};

double widthOf(const InlineText& text, const Atom& atom, const Ruler& ruler) {
    if (atom.kind == Atom::Kind::Box)
        return text.boxes[atom.box].width;
    return atom.kind == Atom::Kind::Character ? ruler.width(atom.style, atom.character) : 0;
}

/// Words of the atoms from `first` to before `last`. Weak blanks part words when `weak` is set.
std::vector<Word> wordsOf(const InlineText& text, const Ruler& ruler, std::size_t first,
                          std::size_t last, bool weak) {
    std::vector<Word> words;
    bool open = false;
    double blank = 0;
    bool newLine = false;
    for (std::size_t i = first; i < last; ++i) {
        const Atom& atom = text.atoms[i];
        const bool parts = atom.isSpace() && (weak || !atom.weak);
        if (parts || atom.kind == Atom::Kind::Break) {
            open = false;
            newLine = newLine || atom.kind == Atom::Kind::Break;
            blank = widthOf(text, atom, ruler);
            continue;
        }
        if (!open)
            words.push_back({i, i, 0, blank, newLine});
        open = true;
        newLine = false;
        words.back().last = i + 1;
        words.back().width += widthOf(text, atom, ruler);
    }
    return words;
}

/// The words of a text; those wider than `room` are parted at their weak blanks.
std::vector<Word> wordsOf(const InlineText& text, const Ruler& ruler, double room) {
    std::vector<Word> words;
    for (const Word& word : wordsOf(text, ruler, 0, text.atoms.size(), false)) {
        if (word.width <= room) {
            words.push_back(word);
            continue;
        }
        const std::size_t start = words.size();
        for (const Word& part : wordsOf(text, ruler, word.first, word.last, true))
            words.push_back(part);
        words[start].blank = word.blank;
        words[start].newLine = word.newLine;
    }
    return words;
}

/// Puts the atoms of a line together: characters of one style are one text.
class LineSetter {
public:
    LineSetter(const InlineText& text, const Ruler& ruler) : text_(text), ruler_(ruler) {}

    TextLine set(std::size_t first, std::size_t last) {
        line_ = {};
        line_.at = text_.atoms[first].at;
        for (std::size_t i = first; i < last; ++i)
            add(text_.atoms[i]);
        endRun();
        return std::move(line_);
    }

private:
    void add(const Atom& atom) {
        if (atom.kind == Atom::Kind::Box) {
            endRun();
            const Box& box = text_.boxes[atom.box];
            for (const Piece& piece : box.pieces)
                addPiece(piece);
            line_.rise = std::max(line_.rise, box.rise);
            line_.drop = std::max(line_.drop, box.drop);
            return;
        }
        if (!(atom.style == style_))
            endRun();
        style_ = atom.style;
        run_ += QString::fromUcs4(&atom.character, 1);
    }

    void endRun() {
        if (run_.isEmpty())
            return;
        const double width = ruler_.width(style_, run_);
        if (style_.link < 0) {
            addPiece({style_, run_, false, width});
        } else {
            const QString& target = text_.links[static_cast<std::size_t>(style_.link)];
            addPiece({style_, QStringLiteral("##LIERT") + run_ + u'#' + target, true, width});
        }
        run_.clear();
    }

    /// Texts of boxes join the text before them.
    void addPiece(const Piece& piece) {
        line_.width += piece.width;
        if (!piece.directive && !line_.pieces.empty() && !line_.pieces.back().directive &&
            line_.pieces.back().style == piece.style) {
            line_.pieces.back().line += piece.line;
            line_.pieces.back().width += piece.width;
            return;
        }
        line_.pieces.push_back(piece);
    }

    const InlineText& text_;
    const Ruler& ruler_;
    TextLine line_;
    Style style_;
    QString run_;
};

void complain(const InlineText& text, const Word& word, int width, Faults& faults) {
    const Atom& atom = text.atoms[word.first];
    const int px = static_cast<int>(std::ceil(word.width / kTwipsPerPixel));
    faults.add(atom.at, QStringLiteral("trop large pour la colonne : %1 pixels, où il y en a %2, "
                                       "sans un endroit où couper")
                            .arg(px)
                            .arg(width));
}

} // namespace

std::vector<TextLine> breakLines(const InlineText& text, int width, const Ruler& ruler,
                                 Faults& faults) {
    const double room = width * kTwipsPerPixel;
    const std::vector<Word> words = wordsOf(text, ruler, room);
    std::vector<TextLine> lines;
    LineSetter setter(text, ruler);
    for (std::size_t first = 0; first < words.size();) {
        double used = words[first].width;
        if (used > room)
            complain(text, words[first], width, faults);
        std::size_t next = first + 1;
        while (next < words.size() && !words[next].newLine &&
               used + words[next].blank + words[next].width <= room) {
            used += words[next].blank + words[next].width;
            ++next;
        }
        lines.push_back(setter.set(words[first].first, words[next - 1].last));
        first = next;
    }
    return lines;
}

Extent extentOf(const InlineText& text, const Ruler& ruler) {
    Extent extent;
    double line = 0;
    for (const Word& word : wordsOf(text, ruler, 0)) {
        line = word.newLine || line == 0 ? word.width : line + word.blank + word.width;
        extent.whole = std::max(extent.whole, line);
        extent.widest = std::max(extent.widest, word.width);
    }
    return extent;
}

namespace {

int placedX(const TextLine& line, const Column& column, Placed placed) {
    const int spare =
        std::max(0, column.width() - static_cast<int>(std::ceil(line.width / kTwipsPerPixel)));
    return column.left + (placed == Placed::Left     ? 0
                          : placed == Placed::Centre ? spare / 2
                                                     : spare);
}

} // namespace

void writeLines(Writer& writer, const std::vector<TextLine>& lines, const Column& column,
                Placed placed, const Style& style, const Label* label) {
    int above = 0; // of the room between two lines, what the upper one has taken
    for (const TextLine& line : lines) {
        writer.comesFrom(line.at);
        const int x = placedX(line, column, placed);
        writer.movePenY(std::max(0, line.rise - kSlack + std::min(above, kSlack)));
        above = line.drop;
        if (label) {
            writer.penX(label->x);
            for (const Piece& piece : label->box.pieces)
                writer.piece(piece);
        }
        if (x != column.penLeft || label)
            writer.penX(x);
        label = nullptr;
        for (const Piece& piece : line.pieces)
            writer.piece(piece);
        writer.endLine(style);
        writer.movePenY(std::max(0, line.drop - kSlack));
    }
}

} // namespace authoring
