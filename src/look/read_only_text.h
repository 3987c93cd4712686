#pragma once

#include <QAccessible>

namespace look {

/// Text for screen readers that cannot be changed, and has neither a selection nor a cursor.
class ReadOnlyText : public QAccessibleTextInterface {
public:
    void selection(int, int* start, int* end) const override { *start = *end = 0; }
    int selectionCount() const override { return 0; }
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void setSelection(int, int, int) override {}
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int) override {}
    void scrollToSubstring(int, int) override {}
};

} // namespace look
