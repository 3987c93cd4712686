#include "page/spoken_page.h"

#include "page/voice_words.h"

#include <algorithm>

namespace page {

namespace {

/// Cells are kept apart by a short silence.
const QString kBetweenCells = QStringLiteral(" ; ");

class Walk {
public:
    explicit Walk(const ReadingStart& start) : start_(start) {}

    void over(const std::vector<ReadableBlock>& blocks) {
        for (const ReadableBlock& block : blocks)
            over(block);
    }

    std::vector<SpokenPart> taken() { return std::move(parts_); }

private:
    void over(const ReadableBlock& block) {
        switch (block.kind) {
        case BlockKind::List:
        case BlockKind::Table:
            // How large it is counts for who hears all of it.
            if (isAhead(block.children.front()))
                say(block.introduction(), block.children.front().area);
            return over(block.children);
        case BlockKind::Row:
            if (begins(block))
                say(cells(block), block.area);
            return;
        case BlockKind::Picture:
            if (begins(block))
                say(block.introduction(), block.area);
            return;
        default:
            return say(wordsFromStart(block), block.area);
        }
    }

    /// From where it began on, all is read: what stands beside may be higher up.
    bool begins(const ReadableBlock& block) {
        began_ = began_ ||
                 (lastPosition(block) >= start_.position && block.area.center().y() >= start_.top);
        return began_;
    }

    /// Whether all of it is read.
    bool isAhead(const ReadableBlock& block) const {
        return began_ ||
               (firstPosition(block) >= start_.position && block.area.center().y() >= start_.top);
    }

    /// Where the text in it begins, and its last character; 0 where there is none.
    static qsizetype firstPosition(const ReadableBlock& block) {
        for (const ReadableLine& line : block.lines)
            if (!line.pieces.empty())
                return line.pieces.front().from;
        return block.children.empty() ? 0 : firstPosition(block.children.front());
    }
    static qsizetype lastPosition(const ReadableBlock& block) {
        qsizetype last = 0;
        for (const ReadableLine& line : block.lines)
            for (const ReadablePiece& piece : line.pieces)
                last = std::max(last, piece.from + piece.count - 1);
        for (const ReadableBlock& child : block.children)
            last = std::max(last, lastPosition(child));
        return last;
    }

    static QString cells(const ReadableBlock& row) {
        QStringList words;
        for (const ReadableBlock& cell : row.children)
            if (const QString spoken = cell.spoken(); !spoken.isEmpty())
                words.append(spoken);
        return words.join(kBetweenCells);
    }

    QString wordsFromStart(const ReadableBlock& block) {
        QString words;
        for (const ReadableLine& line : block.lines) {
            if (!began_ && line.area.center().y() < start_.top)
                continue;
            for (const ReadablePiece& piece : line.pieces)
                words += wordsFromStart(piece);
            words += u' ';
        }
        return words.simplified();
    }

    QString wordsFromStart(const ReadablePiece& piece) {
        if (!began_ && piece.from + piece.count <= start_.position)
            return {};
        const bool first = !began_;
        began_ = true;
        qsizetype at = start_.position - piece.from;
        if (!first || at <= 0 || !piece.isLetterByLetter)
            return piece.spoken;
        while (at > 0 && !piece.linear[at - 1].isSpace())
            --at;
        return piece.linear.mid(at);
    }

    void say(const QString& spoken, const QRectF& area) {
        if (const QString words = voiceWords(spoken); !words.isEmpty())
            parts_.push_back({words, area});
    }

    ReadingStart start_;
    bool began_ = false;
    std::vector<SpokenPart> parts_;
};

} // namespace

std::vector<SpokenPart> spokenParts(const ReadablePage& page, const ReadingStart& start) {
    Walk walk(start);
    walk.over(page.blocks());
    return walk.taken();
}

} // namespace page
