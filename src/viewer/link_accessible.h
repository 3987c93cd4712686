#pragma once

#include <QAccessibleWidget>

namespace viewer {

class LinkWidget;

/// What screen readers see of a link: its role, its name, and that it can be followed.
class LinkAccessible : public QAccessibleWidget {
public:
    explicit LinkAccessible(LinkWidget* link);

    /// Makes Qt ask for this class; only the first call counts.
    static void install();

    /// The paragraph that the link stands in, or the page.
    QAccessibleInterface* parent() const override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& name) override;
};

} // namespace viewer
