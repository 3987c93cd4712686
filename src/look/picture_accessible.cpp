#include "look/picture_accessible.h"

#include "look/picture_box.h"

#include <QAccessible>

namespace look {

namespace {

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    auto* box = dynamic_cast<PictureBox*>(object);
    return box ? new PictureAccessible(box) : nullptr;
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

void PictureAccessible::selection(int, int* start, int* end) const {
    *start = 0;
    *end = 0;
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
