#include "look/block_accessible.h"

#include "look/picture_box.h"
#include "page/twips.h"

#include <algorithm>

namespace look {

namespace {

using page::BlockKind;

QAccessible::Role roleOf(BlockKind kind) {
    switch (kind) {
    case BlockKind::Heading:
        return QAccessible::Heading;
    case BlockKind::Paragraph:
        return QAccessible::Paragraph;
    case BlockKind::List:
        return QAccessible::List;
    case BlockKind::ListItem:
        return QAccessible::ListItem;
    case BlockKind::Table:
        return QAccessible::Table;
    case BlockKind::Row:
        return QAccessible::Row;
    case BlockKind::Cell:
        return QAccessible::Cell;
    case BlockKind::Picture:
        return QAccessible::Graphic;
    }
    return QAccessible::NoRole;
}

/// The toolkit has no other place for it. The title stands above all that is on the page.
QString detailsOf(const page::ReadableBlock& block, page::SurfaceId surface) {
    if (block.kind != BlockKind::Heading)
        return {};
    return QStringLiteral("niveau %1").arg(surface == page::SurfaceId::Titre ? 1 : block.level);
}

} // namespace

BlockAccessible::BlockAccessible(PictureBox* box, const page::ReadableBlock& block,
                                 QAccessibleInterface* parent)
    : box_(box), drawing_(box->drawing()), parent_(parent), kind_(block.kind), area_(block.area),
      words_(block.introduction()), details_(detailsOf(block, box->surfaceId())) {
    QAccessible::registerAccessibleInterface(this);
    // A cell with one text is that text.
    if (block.kind == BlockKind::Cell && block.children.size() <= 1)
        return;
    for (const page::ReadableBlock& child : block.children) {
        children_.push_back(new BlockAccessible(box, child, this));
        ids_.push_back(QAccessible::uniqueId(children_.back()));
    }
}

BlockAccessible::~BlockAccessible() {
    // At its own end the register takes them in any order: those that are gone it does not know.
    for (const QAccessible::Id id : ids_)
        QAccessible::deleteAccessibleInterface(id);
}

bool BlockAccessible::isValid() const {
    return box_ && box_->drawing() == drawing_;
}

BlockAccessible* BlockAccessible::blockAround(const QWidget& control) {
    const QPointF middle =
        QRectF(control.geometry().translated(-box_->inset(), -box_->inset())).center() *
        page::kTwipsPerPixel;
    if (kind_ == BlockKind::Picture || !area_.contains(middle))
        return nullptr;
    for (BlockAccessible* child : children_)
        if (BlockAccessible* around = child->blockAround(control))
            return around;
    return this;
}

QWindow* BlockAccessible::window() const {
    return parent_->window();
}

QAccessibleInterface* BlockAccessible::child(int index) const {
    if (!isValid() || index < 0 || index >= childCount())
        return nullptr;
    const auto at = static_cast<std::size_t>(index);
    if (at < children_.size())
        return children_[at];
    return QAccessible::queryAccessibleInterface(controls_[at - children_.size()]);
}

QAccessibleInterface* BlockAccessible::childAt(int x, int y) const {
    for (int index = 0; index < childCount(); ++index)
        if (QAccessibleInterface* one = child(index); one && one->rect().contains(x, y))
            return one;
    return nullptr;
}

int BlockAccessible::childCount() const {
    return isValid() ? static_cast<int>(children_.size() + controls_.size()) : 0;
}

int BlockAccessible::indexOfChild(const QAccessibleInterface* sought) const {
    for (int index = 0; index < childCount(); ++index)
        if (child(index) == sought)
            return index;
    return -1;
}

QString BlockAccessible::text(QAccessible::Text kind) const {
    switch (kind) {
    case QAccessible::Name:
        return words_;
    case QAccessible::Description:
        return details_;
    default:
        return {};
    }
}

QRect BlockAccessible::rect() const {
    if (!isValid())
        return {};
    const QRectF pixels(area_.topLeft() / page::kTwipsPerPixel,
                        area_.size() / page::kTwipsPerPixel);
    const QPoint corner = box_->mapToGlobal(QPoint(box_->inset(), box_->inset()));
    return pixels.toAlignedRect().translated(corner);
}

QAccessible::Role BlockAccessible::role() const {
    return roleOf(kind_);
}

QAccessible::State BlockAccessible::state() const {
    QAccessible::State state;
    state.invalid = !isValid();
    state.readOnly = true;
    state.invisible = !box_ || !box_->isVisible();
    return state;
}

bool BlockAccessible::hasText() const {
    return kind_ == BlockKind::Heading || kind_ == BlockKind::Paragraph ||
           kind_ == BlockKind::ListItem || kind_ == BlockKind::Cell;
}

void* BlockAccessible::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TextInterface && hasText())
        return static_cast<QAccessibleTextInterface*>(this);
    return nullptr;
}

QString BlockAccessible::attributes(int, int* start, int* end) const {
    *start = 0;
    *end = characterCount();
    return {};
}

} // namespace look
