#include "viewer/link_accessible.h"

#include "look/picture_accessible.h"
#include "viewer/link_widget.h"

#include <QAccessible>

namespace viewer {

namespace {

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    auto* link = dynamic_cast<LinkWidget*>(object);
    return link ? new LinkAccessible(link) : nullptr;
}

} // namespace

LinkAccessible::LinkAccessible(LinkWidget* link) : QAccessibleWidget(link, QAccessible::Link) {}

void LinkAccessible::install() {
    QAccessible::installFactory(makeInterface); // known factories are not added again
}

QAccessibleInterface* LinkAccessible::parent() const {
    return look::PictureAccessible::parentOf(*widget());
}

QString LinkAccessible::text(QAccessible::Text kind) const {
    // A picture is named after its tooltip, which would be the description too.
    if (kind == QAccessible::Description || kind == QAccessible::Help)
        return {};
    return QAccessibleWidget::text(kind);
}

QAccessible::State LinkAccessible::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    state.linked = true;
    return state;
}

QStringList LinkAccessible::actionNames() const {
    return QAccessibleWidget::actionNames() << pressAction();
}

void LinkAccessible::doAction(const QString& name) {
    if (name == pressAction())
        static_cast<LinkWidget*>(object())->click();
    else
        QAccessibleWidget::doAction(name);
}

} // namespace viewer
