#pragma once

#include <QAccessibleWidget>

#include <map>

namespace exercises {

class Strip;

/// What screen readers see of the progress strip: a list with an item for each question, which
/// tells whether it was answered and how.
class StripAccessible : public QAccessibleWidget {
public:
    explicit StripAccessible(Strip* strip);
    ~StripAccessible() override;

    /// Makes Qt ask for this class; only the first call counts.
    static void install();

    /// Tells screen readers that the state of questions has changed.
    static void tellChange(Strip& strip);
    /// Tells them that the keyboard is on the band of the question shown.
    static void tellFocus(Strip& strip);

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* focusChild() const override;

private:
    Strip& strip() const;

    mutable std::map<int, QAccessible::Id> bands_; ///< by question; made when they are asked for
};

} // namespace exercises
