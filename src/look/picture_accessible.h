#pragma once

#include <QAccessibleWidget>

namespace look {

class PictureBox;

/// What screen readers see of a picture box: a document with the text that stands on it, to be read
/// as a whole or by line, word and character.
class PictureAccessible : public QAccessibleWidget, public QAccessibleTextInterface {
public:
    explicit PictureAccessible(PictureBox* box);

    /// Makes Qt ask for this class; only the first call counts.
    static void install();

    QString text(QAccessible::Text kind) const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    // The text cannot be changed, and there is no selection or cursor in it.
    void selection(int index, int* start, int* end) const override;
    int selectionCount() const override { return 0; }
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void setSelection(int, int, int) override {}
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int) override {}

    QString text(int from, int to) const override;
    int characterCount() const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint& point) const override;
    void scrollToSubstring(int, int) override {}
    QString attributes(int offset, int* start, int* end) const override;

private:
    PictureBox& box() const;
};

} // namespace look
