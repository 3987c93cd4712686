#pragma once

#include <QTableView>

namespace common {

/// A model's data and heads under this role are formulas, shown instead of the plain words.
inline constexpr int kFormulaRole = Qt::UserRole;

/// Right and in the middle, as numbers stand in a column.
inline QVariant numberAlignment() {
    return QVariant(Qt::AlignRight | Qt::AlignVCenter);
}

/// A table of numbers. Ctrl+C copies all of it for a spreadsheet: without blanks in numbers, with
/// the minus sign of the keyboard. The space bar is left to the window.
class DataTable : public QTableView {
public:
    /// `name` is what a screen reader says.
    DataTable(QAbstractItemModel* model, const QString& name, QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void copyAll() const;
};

} // namespace common
