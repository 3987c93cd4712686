#pragma once

#include <QAccessible>

class QString;
class QWidget;

namespace look {

/// Has screen readers see a widget that paints itself as what it is: a window, a group, a line of
/// text, a drawing; a button as a link, or as one of several. To be called before anything else in
/// a constructor: the toolkit keeps the first answer that it gets.
void setAccessibleRole(QWidget& widget, QAccessible::Role role);

/// A widget with such a role that can say in words what it shows at the moment.
class ToldInWords {
public:
    virtual ~ToldInWords() = default;

    /// Its description, asked for when somebody wants to hear it.
    virtual QString toldInWords() const = 0;
};

} // namespace look
