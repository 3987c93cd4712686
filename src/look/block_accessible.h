#pragma once

#include "look/read_only_text.h"
#include "page/readable_page.h"

#include <QAccessible>
#include <QPointer>

#include <vector>

namespace look {

class PictureAccessible;
class PictureBox;

/// What screen readers see of a block of a page: a heading, a paragraph with its links, a list, a
/// table, a picture. Where the page has gone meanwhile it says that it is not valid any more.
class BlockAccessible : public QAccessibleInterface, public ReadOnlyText {
public:
    /// `parent` owns it, by the toolkit's register of such objects.
    BlockAccessible(PictureBox* box, const page::ReadableBlock& block,
                    QAccessibleInterface* parent);
    ~BlockAccessible() override;

    /// The innermost block that a control on the page stands in; null for none.
    BlockAccessible* blockAround(const QWidget& control);
    /// Has the control as one of its own.
    void adopt(QWidget* control) { controls_.push_back(control); }

    // QAccessibleInterface
    bool isValid() const override;
    QObject* object() const override { return nullptr; }
    QWindow* window() const override;
    QAccessibleInterface* parent() const override { return parent_; }
    QAccessibleInterface* child(int index) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    // ReadOnlyText
    QString text(int from, int to) const override { return words_.mid(from, to - from); }
    int characterCount() const override { return static_cast<int>(words_.size()); }
    QRect characterRect(int) const override { return rect(); }
    int offsetAtPoint(const QPoint&) const override { return 0; }
    QString attributes(int, int* start, int* end) const override;

private:
    bool hasText() const;

    QPointer<PictureBox> box_;
    int drawing_; ///< of the box, that the block belongs to
    QAccessibleInterface* parent_;
    page::BlockKind kind_;
    QRectF area_; ///< twips
    QString words_;
    QString details_; ///< how deep a heading is
    std::vector<BlockAccessible*> children_;
    std::vector<QAccessible::Id> ids_; ///< of the children, in the toolkit's register
    std::vector<QPointer<QWidget>> controls_;
};

} // namespace look
