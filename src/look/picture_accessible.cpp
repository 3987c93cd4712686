#include "look/picture_accessible.h"

#include "look/picture_box.h"
#include "page/twips.h"

#include <QAccessible>

#include <algorithm>

namespace look {

namespace {

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    auto* box = dynamic_cast<PictureBox*>(object);
    return box ? new PictureAccessible(box) : nullptr;
}

bool isLink(QWidget* control) {
    const QAccessibleInterface* face = QAccessible::queryAccessibleInterface(control);
    return face && face->role() == QAccessible::Link;
}

/// The controls that show on a box, in the order they stand in: that of reading, where its owner
/// put them so. A link that the Tab key passes over is the picture of the one beside it.
QList<QWidget*> shownControls(const PictureBox& box) {
    QList<QWidget*> controls = box.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    controls.removeIf([](QWidget* control) {
        return control->isHidden() || (control->focusPolicy() == Qt::NoFocus && isLink(control));
    });
    return controls;
}

} // namespace

PictureAccessible::PictureAccessible(PictureBox* box)
    : QAccessibleWidget(box, QAccessible::Document) {}

void PictureAccessible::install() {
    QAccessible::installFactory(makeInterface); // known factories are not added again
}

PictureBox& PictureAccessible::box() const {
    return *static_cast<PictureBox*>(object());
}

PictureAccessible::~PictureAccessible() {
    forget();
}

void PictureAccessible::forget() const {
    for (const QAccessible::Id id : ids_)
        QAccessible::deleteAccessibleInterface(id);
    ids_.clear();
    blocks_.clear();
    parts_.clear();
}

const std::vector<PictureAccessible::Part>& PictureAccessible::parts() const {
    const QList<QWidget*> controls = shownControls(box());
    if (drawing_ == box().drawing() && controls == controls_)
        return parts_;
    forget();
    drawing_ = box().drawing();
    controls_ = controls;
    auto* self = const_cast<PictureAccessible*>(this);
    for (const page::ReadableBlock& block : box().readablePage().blocks()) {
        blocks_.push_back(new BlockAccessible(&box(), block, self));
        ids_.push_back(QAccessible::uniqueId(blocks_.back()));
        const QRectF& area = block.area;
        parts_.push_back(
            {blocks_.back(), nullptr,
             QRectF(area.topLeft() / page::kTwipsPerPixel, area.size() / page::kTwipsPerPixel)
                 .toAlignedRect()
                 .translated(box().inset(), box().inset())});
    }
    for (QWidget* control : controls) {
        BlockAccessible* around = nullptr;
        for (auto block = blocks_.begin(); isLink(control) && !around && block != blocks_.end();)
            around = (*block++)->blockAround(*control);
        if (around) {
            around->adopt(control);
            continue;
        }
        // Beside the first part that begins below its middle.
        const int middle = control->geometry().center().y();
        const auto below = std::find_if(parts_.begin(), parts_.end(), [&](const Part& part) {
            return part.block && part.place.top() > middle;
        });
        parts_.insert(below, {nullptr, control, control->geometry()});
    }
    return parts_;
}

QAccessibleInterface* PictureAccessible::parentOf(const QWidget& link) {
    auto* document = dynamic_cast<PictureAccessible*>(
        QAccessible::queryAccessibleInterface(link.parentWidget()));
    if (!document)
        return QAccessible::queryAccessibleInterface(link.parentWidget());
    document->parts(); // of the page as it is now
    for (BlockAccessible* block : document->blocks_)
        if (BlockAccessible* around = block->blockAround(link))
            return around;
    return document;
}

void PictureAccessible::tellNewPage(PictureBox& box) {
    if (!QAccessible::isActive())
        return;
    const auto* document =
        dynamic_cast<PictureAccessible*>(QAccessible::queryAccessibleInterface(&box));
    if (!document)
        return;
    for (const Part& part : document->parts())
        if (part.block) {
            QAccessibleEvent created(part.block, QAccessible::ObjectCreated);
            QAccessible::updateAccessibility(&created);
        }
}

QAccessibleInterface* PictureAccessible::child(int index) const {
    if (index < 0 || index >= childCount())
        return nullptr;
    const Part& part = parts()[static_cast<std::size_t>(index)];
    return part.block ? part.block : QAccessible::queryAccessibleInterface(part.control);
}

QAccessibleInterface* PictureAccessible::childAt(int x, int y) const {
    for (int index = 0; index < childCount(); ++index)
        if (QAccessibleInterface* one = child(index); one && one->rect().contains(x, y))
            return one;
    return nullptr;
}

int PictureAccessible::childCount() const {
    return static_cast<int>(parts().size());
}

int PictureAccessible::indexOfChild(const QAccessibleInterface* sought) const {
    for (int index = 0; index < childCount(); ++index)
        if (child(index) == sought)
            return index;
    return -1;
}

QString PictureAccessible::text(QAccessible::Text kind) const {
    if (kind == QAccessible::Description || kind == QAccessible::Value)
        return box().readableText();
    return QAccessibleWidget::text(kind);
}

void* PictureAccessible::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QString PictureAccessible::text(int from, int to) const {
    return box().readableText().mid(from, to - from);
}

int PictureAccessible::characterCount() const {
    return static_cast<int>(box().readableText().size());
}

QRect PictureAccessible::characterRect(int) const {
    return rect(); // a reader that follows the text with a frame shows the whole page
}

int PictureAccessible::offsetAtPoint(const QPoint&) const {
    return 0;
}

QString PictureAccessible::attributes(int, int* start, int* end) const {
    *start = 0;
    *end = characterCount();
    return {};
}

} // namespace look
