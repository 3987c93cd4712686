#include "page/readable_blocks.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace page {

namespace {

using Row = FormulaShapes::Row;
using Pieces = std::vector<const TextPiece*>;

/// A line goes on with the next when it fills this part of the width and the next one is no further
/// below than this many heights of its letters.
constexpr double kFull = 0.7;
constexpr double kClose = 1.9;

/// How much larger than the text the letters of a heading are.
constexpr double kLarger = 1.2;

/// Longest heading, in UTF-16 units: what is longer is a text in large or bold letters.
constexpr qsizetype kLongestHeading = 120;

/// Rows of a table touch; a pixel may be lost between them.
constexpr double kSlack = 20;

/// Boxes that are looked at, more than a page has.
constexpr std::size_t kMostBoxes = 2000;

bool isBold(const ReadableLine& line) {
    return std::all_of(line.pieces.begin(), line.pieces.end(), [](const ReadablePiece& piece) {
        return piece.source->font.bold || piece.linear.trimmed().isEmpty();
    });
}

double points(const ReadableLine& line) {
    double most = 0;
    for (const ReadablePiece& piece : line.pieces)
        if (!piece.linear.trimmed().isEmpty())
            most = std::max(most, piece.source->font.points);
    return most;
}

QString textOf(const ReadableLine& line) {
    QString text;
    for (const ReadablePiece& piece : line.pieces)
        text += piece.linear;
    return text.trimmed();
}

/// A bullet, a dash or a number with its sign, and a blank.
bool beginsItem(const ReadableLine& line) {
    const QString text = textOf(line);
    if (text.isEmpty())
        return false;
    if (QStringLiteral("•●○■▪▫□◦‣➢✓→–—").contains(text.front()))
        return text.size() > 1 && !text[1].isDigit();
    if (text.front() == u'-')
        return text.size() > 1 && text[1].isSpace();
    qsizetype digits = 0;
    while (digits < text.size() && text[digits].isDigit())
        ++digits;
    return digits > 0 && digits <= 2 && text.size() > digits + 1 &&
           (text[digits] == u'.' || text[digits] == u')') && text[digits + 1].isSpace();
}

ReadableLine readableLine(const Pieces& pieces) {
    ReadableLine line;
    for (const LinePart& part : readLine(pieces)) {
        const TextPiece& piece = *part.piece;
        const bool letters = !piece.isFormula && part.linear == piece.text;
        line.area |= piece.area;
        line.pieces.push_back({piece.area, 0, 0, part.linear, part.spoken, &piece, letters});
    }
    return line;
}

std::vector<ReadableLine> linesOf(const Pieces& pieces) {
    std::vector<const TextOperation*> runs(pieces.begin(), pieces.end());
    std::vector<ReadableLine> lines;
    for (const TextLine& line : arrangedInLines(runs)) {
        Pieces own;
        for (const TextOperation* run : line.runs)
            own.push_back(static_cast<const TextPiece*>(run)); // nothing else was put in
        ReadableLine read = readableLine(own);
        if (!textOf(read).isEmpty())
            lines.push_back(std::move(read));
    }
    return lines;
}

/// The size that most of a text is set in.
double textSize(const TextPieces& pieces) {
    std::map<double, qsizetype> letters;
    for (const TextPiece& piece : pieces)
        letters[piece.font.points] += piece.linear.trimmed().size();
    const auto most = std::max_element(letters.begin(), letters.end(),
                                       [](auto& a, auto& b) { return a.second < b.second; });
    return most == letters.end() ? 0 : most->first;
}

class Blocks {
public:
    explicit Blocks(double textPoints) : textPoints_(textPoints) {}

    /// The blocks of a text; `least` is the right edge of the narrowest column it may be set in.
    std::vector<ReadableBlock> of(const Pieces& pieces, double least) const {
        std::vector<ReadableLine> lines = linesOf(pieces);
        double left = 0, right = least;
        for (const ReadableLine& line : lines) {
            left = &line == &lines.front() ? line.area.left() : std::min(left, line.area.left());
            right = std::max(right, line.area.right());
        }
        std::vector<ReadableBlock> blocks;
        for (ReadableLine& line : lines) {
            const BlockKind kind = kindOf(line);
            if (!blocks.empty() && goesOn(blocks.back(), line, kind, left + kFull * (right - left)))
                blocks.back().area |= line.area;
            else
                blocks.push_back(begun(kind, line));
            blocks.back().lines.push_back(std::move(line));
        }
        return blocks;
    }

private:
    BlockKind kindOf(const ReadableLine& line) const {
        if (beginsItem(line))
            return BlockKind::ListItem;
        const bool stands = isBold(line) || points(line) >= kLarger * textPoints_;
        return stands && textOf(line).size() <= kLongestHeading ? BlockKind::Heading
                                                                : BlockKind::Paragraph;
    }

    ReadableBlock begun(BlockKind kind, const ReadableLine& line) const {
        ReadableBlock block;
        block.kind = kind;
        block.area = line.area;
        if (kind == BlockKind::Heading)
            block.level = points(line) >= kLarger * textPoints_ ? 2 : 3;
        return block;
    }

    static bool goesOn(const ReadableBlock& block, const ReadableLine& line, BlockKind kind,
                       double full) {
        const ReadableLine& last = block.lines.back();
        const double height = std::max(last.area.height(), line.area.height());
        const bool follows = kind == BlockKind::Paragraph
                                 ? block.kind != BlockKind::Heading
                                 : kind == BlockKind::Heading && block.kind == kind;
        return follows && line.area.top() - last.area.top() <= kClose * height &&
               last.area.right() >= full && points(last) == points(line);
    }

    double textPoints_;
};

/// What boxes hold: pieces are taken by the smallest box around them.
class Boxes {
public:
    explicit Boxes(std::vector<Row> rows) : rows_(std::move(rows)) {
        if (rows_.size() > kMostBoxes)
            rows_.resize(kMostBoxes);
        pieces_.resize(rows_.size());
    }

    bool take(const TextPiece& piece) {
        const QPointF middle = piece.area.center();
        std::size_t smallest = rows_.size();
        for (std::size_t at = 0; at < rows_.size(); ++at)
            if (rows_[at].box.contains(middle) &&
                (smallest == rows_.size() || area(at) < area(smallest)))
                smallest = at;
        if (smallest == rows_.size())
            return false;
        pieces_[smallest].push_back(&piece);
        return true;
    }

    /// Adds what is in the boxes.
    void addTo(std::vector<ReadableBlock>& blocks, const Blocks& inside) const {
        const ReadableBlock* table = nullptr;
        for (std::size_t at = 0; at < rows_.size(); ++at) {
            if (pieces_[at].empty())
                continue;
            if (rows_[at].edges.size() <= 2) {
                const auto framed = inside.of(pieces_[at], rows_[at].box.right());
                blocks.insert(blocks.end(), framed.begin(), framed.end());
                table = nullptr;
                continue;
            }
            ReadableBlock row = rowOf(at, inside);
            if (!table || !isBelow(*table, row.area))
                blocks.push_back(emptyTable(row.area));
            blocks.back().area |= row.area;
            blocks.back().children.push_back(std::move(row));
            table = &blocks.back();
        }
    }

private:
    double area(std::size_t at) const { return rows_[at].box.width() * rows_[at].box.height(); }

    static bool isBelow(const ReadableBlock& table, const QRectF& row) {
        return std::abs(table.area.bottom() - row.top()) <= kSlack &&
               std::abs(table.area.left() - row.left()) <= kSlack;
    }

    static ReadableBlock emptyTable(const QRectF& area) {
        ReadableBlock table;
        table.kind = BlockKind::Table;
        table.area = area;
        return table;
    }

    ReadableBlock rowOf(std::size_t at, const Blocks& inside) const {
        const Row& box = rows_[at];
        ReadableBlock row;
        row.kind = BlockKind::Row;
        row.area = box.box;
        for (std::size_t edge = 1; edge < box.edges.size(); ++edge) {
            const double left = box.edges[edge - 1], right = box.edges[edge];
            ReadableBlock cell;
            cell.kind = BlockKind::Cell;
            cell.area = {left, box.box.top(), right - left, box.box.height()};
            Pieces own;
            for (const TextPiece* piece : pieces_[at]) {
                const double middle = piece->area.center().x();
                if (middle >= left && (middle < right || edge + 1 == box.edges.size()))
                    own.push_back(piece);
            }
            cell.children = inside.of(own, right);
            row.children.push_back(std::move(cell));
        }
        return row;
    }

    std::vector<Row> rows_;
    std::vector<Pieces> pieces_;
};

} // namespace

std::vector<ReadableBlock> readableBlocks(const TextPieces& pieces, std::vector<Row> rows,
                                          double width) {
    Boxes boxes(std::move(rows));
    Pieces outside;
    for (const TextPiece& piece : pieces)
        if (!boxes.take(piece))
            outside.push_back(&piece);
    const Blocks blocks(textSize(pieces));
    std::vector<ReadableBlock> all = blocks.of(outside, width / 2);
    boxes.addTo(all, blocks);
    return all;
}

} // namespace page
