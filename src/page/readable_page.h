#pragma once

#include "page/recording.h"
#include "page/spoken_line.h"
#include "page/text_lines.h"

#include <vector>

namespace page {

/// A run, a caption or a formula in the text of a readable page.
struct ReadablePiece {
    QRectF area;    ///< twips
    qsizetype from; ///< where its text begins in ReadablePage::text()
    qsizetype count;
    QString linear; ///< its `count` characters there
    QString spoken;
    const TextPiece* source; ///< lives as long as the page
    /// Whether each character of the run is one of the text: others are taken as a whole.
    bool isLetterByLetter;
};

struct ReadableLine {
    QRectF area; ///< twips
    std::vector<ReadablePiece> pieces;
};

enum class BlockKind { Heading, Paragraph, List, ListItem, Table, Row, Cell, Picture };

/// A part of a page that is read as a whole. Lists have items, tables rows, rows cells, cells
/// blocks; paragraphs, headings and items of lists have lines; pictures have a title.
struct ReadableBlock {
    BlockKind kind = BlockKind::Paragraph;
    QRectF area;   ///< twips
    int level = 0; ///< of headings, from 1
    std::vector<ReadableLine> lines;
    std::vector<ReadableBlock> children;
    QString title; ///< of pictures

    /// Its text as a voice should say it, children included.
    QString spoken() const;
    /// What is said of it before its children are: of lists and tables how large they are, of all
    /// others spoken().
    QString introduction() const;
};

/// What stands on a surface since it was last cleared, as a document for those who read it another
/// way than by looking: screen readers, the clipboard, other formats. Captions of links are part of
/// the text they stand in, shadows are left out, the sign faces' codes are Unicode, formulas are
/// text. A page has no structure but its looks: what is larger or bold on lines of its own is a
/// heading, what begins with a bullet is an item of a list, what stands in boxes side by side is a
/// table, and a line that another follows closely goes on in it when it is full.
class ReadablePage {
public:
    /// Lays captions out roughly, when no metrics are at hand: all their lines are as wide as they.
    static std::vector<TextOperation> roughCaption(const LinkOperation& link);

    /// The recording must outlive it, and stay as it is. A page with more than a hundred thousand
    /// runs is read up to there.
    ReadablePage(const Recording& recording, SurfaceId surface,
                 const TextLines::CaptionLayout& layOut = roughCaption);
    ReadablePage(const ReadablePage&) = delete;
    ReadablePage& operator=(const ReadablePage&) = delete;

    /// In the order in which a person reads them.
    const std::vector<ReadableBlock>& blocks() const { return blocks_; }

    /// All of the text, formulas in their linear form: a line for each block, or row of a table,
    /// whose cells are kept apart by tabs.
    const QString& text() const { return text_; }

    /// Every piece, in the order of the text.
    const std::vector<const ReadablePiece*>& pieces() const { return pieces_; }

private:
    void writeText(ReadableBlock& block);

    TextPieces sources_;
    std::vector<ReadableBlock> blocks_;
    std::vector<const ReadablePiece*> pieces_;
    QString text_;
};

} // namespace page
