#pragma once

#include "look/block_accessible.h"
#include "look/read_only_text.h"

#include <QAccessibleWidget>
#include <QPointer>
#include <QRect>

#include <vector>

namespace look {

/// What screen readers see of a picture box: a document. Its children are the blocks of the page
/// and the controls that stand on it, in the order of reading; its text is all of the page, to be
/// read as a whole or by line, word and character.
class PictureAccessible : public QAccessibleWidget, public ReadOnlyText {
public:
    explicit PictureAccessible(PictureBox* box);

    ~PictureAccessible() override;

    /// Makes Qt ask for this class; only the first call counts.
    static void install();

    /// What a link on a picture box is in: the paragraph around it, otherwise the document.
    static QAccessibleInterface* parentOf(const QWidget& link);

    /// Tells screen readers that another page is there.
    static void tellNewPage(PictureBox& box);

    QAccessibleInterface* child(int index) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;

    QString text(QAccessible::Text kind) const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    // ReadOnlyText
    QString text(int from, int to) const override;
    int characterCount() const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint& point) const override;
    QString attributes(int offset, int* start, int* end) const override;

private:
    /// A child of the document: a block, or a control.
    struct Part {
        BlockAccessible* block;
        QPointer<QWidget> control;
        QRect place; ///< pixels of the box
    };

    PictureBox& box() const;
    /// The parts of the page as it is now.
    const std::vector<Part>& parts() const;
    void forget() const;

    mutable std::vector<Part> parts_;
    mutable std::vector<BlockAccessible*> blocks_;
    mutable std::vector<QAccessible::Id> ids_; ///< of the blocks, in the toolkit's register
    mutable QList<QWidget*> controls_;         ///< that showed when `parts_` were made
    mutable int drawing_ = -1;
};

} // namespace look
