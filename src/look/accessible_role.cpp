#include "look/accessible_role.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QVariant>

namespace look {

namespace {

constexpr const char* kRole = "accessibleRole";

class RoleAccessible : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    QString text(QAccessible::Text kind) const override {
        const auto* told = dynamic_cast<const ToldInWords*>(object());
        if (kind == QAccessible::Description && told)
            return told->toldInWords();
        return QAccessibleWidget::text(kind);
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.linked = role() == QAccessible::Link;
        if (const QAbstractButton* pressed = button()) {
            state.checkable = pressed->isCheckable();
            state.checked = pressed->isChecked();
        }
        return state;
    }

    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (button())
            names << pressAction();
        return names;
    }

    void doAction(const QString& name) override {
        if (name == pressAction() && button())
            button()->click();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    QAbstractButton* button() const { return qobject_cast<QAbstractButton*>(object()); }
};

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    const QVariant role = object->property(kRole);
    if (!role.isValid() || !object->isWidgetType())
        return nullptr;
    return new RoleAccessible(static_cast<QWidget*>(object),
                              static_cast<QAccessible::Role>(role.toInt()));
}

} // namespace

void setAccessibleRole(QWidget& widget, QAccessible::Role role) {
    QAccessible::installFactory(makeInterface); // known factories are not added again
    widget.setProperty(kRole, static_cast<int>(role));
}

} // namespace look
