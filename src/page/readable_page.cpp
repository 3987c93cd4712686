#include "page/readable_page.h"

#include "page/formula_shapes.h"
#include "page/link_view.h"
#include "page/picture_title.h"
#include "page/readable_blocks.h"
#include "page/surface_widths.h"
#include "page/twips.h"

#include <algorithm>

namespace page {

namespace {

constexpr std::size_t kMostRuns = 100'000;

/// Tells what a surface shows to who puts it together, and keeps its pictures.
class Reading : PassOver<MenuOperation, FieldOperation, VideoOperation, SwitchOperation,
                         CaptionOperation, FailedOperation> {
public:
    Reading(const Recording& recording, SurfaceId surface, const TextLines::CaptionLayout& layOut)
        : surface_(surface), layOut_(layOut), links_(standingLinks(recording)),
          nextLink_(links_.begin()) {
        for (const Operation& operation : recording.operations())
            if (shapes_.pieces().size() < kMostRuns)
                std::visit(*this, operation);
    }

    const FormulaShapes& shapes() const { return shapes_; }
    const std::vector<const PictureOperation*>& pictures() const { return pictures_; }

    using PassOver::operator();
    void operator()(const ClearOperation& clear) {
        if (clear.surface != surface_)
            return;
        shapes_.wipe();
        pictures_.clear();
    }
    void operator()(const TextOperation& text) {
        if (text.surface == surface_)
            shapes_.addText(text);
    }
    void operator()(const LineOperation& line) {
        if (line.surface == surface_)
            shapes_.addLine(line);
    }
    void operator()(const FillOperation&) { shapes_.addOther(); }
    void operator()(const PictureOperation& picture) {
        shapes_.addOther();
        if (picture.surface == surface_ && !picture.symbol)
            pictures_.push_back(&picture);
    }
    void operator()(const LinkOperation& link) {
        if (nextLink_ == links_.end() || *nextLink_ != &link)
            return;
        ++nextLink_;
        if (link.surface == surface_ && link.control == LinkControl::Labelien)
            shapes_.addCaptions(layOut_(link), link);
    }

private:
    SurfaceId surface_;
    const TextLines::CaptionLayout& layOut_;
    std::vector<const LinkOperation*> links_;
    std::vector<const LinkOperation*>::const_iterator nextLink_;
    FormulaShapes shapes_;
    std::vector<const PictureOperation*> pictures_;
};

double widthOf(SurfaceId surface) {
    return kTwipsPerPixel *
           (surface == SurfaceId::PictureIllus ? kIllustrationWidthPx : kPageWidthPx);
}

ReadableBlock pictureBlock(const PictureOperation& picture) {
    ReadableBlock block;
    block.kind = BlockKind::Picture;
    block.area = {picture.x, picture.y, picture.width, picture.height};
    block.title = pictureTitle(picture);
    return block;
}

QString counted(std::size_t count, const QString& one, const QString& many) {
    return QString::number(count) + u' ' + (count == 1 ? one : many);
}

/// Items of a list that follow each other, as a list.
std::vector<ReadableBlock> withLists(std::vector<ReadableBlock> blocks) {
    std::vector<ReadableBlock> all;
    for (ReadableBlock& block : blocks) {
        if (block.kind != BlockKind::ListItem) {
            all.push_back(std::move(block));
            continue;
        }
        if (all.empty() || all.back().kind != BlockKind::List)
            all.emplace_back().kind = BlockKind::List;
        all.back().area |= block.area;
        all.back().children.push_back(std::move(block));
    }
    return all;
}

} // namespace

QString ReadableBlock::spoken() const {
    if (kind == BlockKind::Picture)
        return title;
    QString text;
    for (const ReadableLine& line : lines) {
        for (const ReadablePiece& piece : line.pieces)
            text += piece.spoken;
        text += u' ';
    }
    for (const ReadableBlock& child : children)
        text += child.spoken() + u' ';
    return text.simplified();
}

QString ReadableBlock::introduction() const {
    if (kind == BlockKind::List)
        return QStringLiteral("Liste de ") +
               counted(children.size(), QStringLiteral("élément"), QStringLiteral("éléments"));
    if (kind == BlockKind::Table)
        return QStringLiteral("Tableau : ") +
               counted(children.size(), QStringLiteral("ligne"), QStringLiteral("lignes")) +
               QStringLiteral(", ") +
               counted(children.front().children.size(), QStringLiteral("colonne"),
                       QStringLiteral("colonnes"));
    return spoken();
}

std::vector<TextOperation> ReadablePage::roughCaption(const LinkOperation& link) {
    const QStringList texts = link.caption.split(QStringLiteral("\r\n"));
    const double height = link.height / static_cast<double>(texts.size());
    std::vector<TextOperation> lines;
    double y = link.y;
    for (const QString& text : texts) {
        lines.push_back({link.surface, link.x, y, text, link.font, link.ink, link.width});
        y += height;
    }
    return lines;
}

ReadablePage::ReadablePage(const Recording& recording, SurfaceId surface,
                           const TextLines::CaptionLayout& layOut) {
    const Reading reading(recording, surface, layOut);
    sources_ = reading.shapes().pieces();
    blocks_ = readableBlocks(sources_, reading.shapes().rows(), widthOf(surface));
    for (const PictureOperation* picture : reading.pictures())
        blocks_.push_back(pictureBlock(*picture));
    std::stable_sort(blocks_.begin(), blocks_.end(),
                     [](const auto& a, const auto& b) { return a.area.top() < b.area.top(); });
    blocks_ = withLists(std::move(blocks_));
    for (ReadableBlock& block : blocks_) {
        writeText(block);
        if (block.kind != BlockKind::Picture && !text_.endsWith(u'\n'))
            text_ += u'\n';
    }
}

/// Gives the pieces of a block, which has its place for good, their places in the text.
void ReadablePage::writeText(ReadableBlock& block) {
    const qsizetype start = text_.size();
    for (ReadableLine& line : block.lines) {
        if (text_.size() > start && !text_.endsWith(u' '))
            text_ += u' ';
        for (ReadablePiece& piece : line.pieces) {
            piece.from = text_.size();
            piece.count = piece.linear.size();
            text_ += piece.linear;
            pieces_.push_back(&piece);
        }
    }
    for (ReadableBlock& child : block.children) {
        if (text_.size() > start)
            text_ += block.kind == BlockKind::Row    ? u'\t'
                     : block.kind == BlockKind::Cell ? u' '
                                                     : u'\n';
        writeText(child);
    }
}

} // namespace page
