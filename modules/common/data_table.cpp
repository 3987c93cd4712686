#include "common/data_table.h"

#include "common/formula.h"
#include "look/interface_font.h"
#include "look/palette.h"
#include "look/scroll_bar.h"
#include "look/tool_tip.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>
#include <utility>

namespace common {

namespace {

constexpr int kRowHeight = 24;
constexpr int kHeadHeight = 28;
constexpr int kMargin = 6;

/// Numbers as spreadsheets read them: without blanks, with the minus sign of the keyboard.
QString plainNumber(QString number) {
    return number.remove(QChar(0x202F)).replace(QChar(0x2212), u'-');
}

/// Heads of columns set as formulas.
class FormulaHeader : public QHeaderView {
public:
    explicit FormulaHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
        setSectionResizeMode(QHeaderView::Stretch);
        setFixedHeight(kHeadHeight);
    }

    /// In a window that is too narrow for its heads a table scrolls.
    void fit() {
        double widest = 0;
        for (int column = 0; column < count(); ++column)
            widest = std::max(widest, head(column).width());
        setMinimumSectionSize(qCeil(widest) + 2 * kMargin);
    }

protected:
    void paintSection(QPainter* painter, const QRect& rect, int column) const override {
        painter->fillRect(rect, QColor::fromRgb(look::kIvory));
        painter->setPen(QColor::fromRgb(look::kRule));
        painter->drawLine(rect.bottomLeft(), rect.bottomRight());
        painter->setPen(QColor::fromRgb(look::kInk));
        const Formula formula = head(column);
        formula.paint(*painter, {rect.right() - formula.width() - kMargin, rect.top() + 18.0});
    }

private:
    Formula head(int column) const {
        return {model()->headerData(column, Qt::Horizontal, kFormulaRole).toString(),
                look::kLabelPx};
    }
};

/// Cells set as formulas, where the model has one.
class FormulaCells : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyleOptionViewItem own = option;
        initStyleOption(&own, index);
        const QString words = std::exchange(own.text, {});
        const QStyle* style = own.widget != nullptr ? own.widget->style() : QApplication::style();
        style->drawControl(QStyle::CE_ItemViewItem, &own, painter, own.widget);
        painter->setPen(QColor::fromRgb(look::kInk));
        painter->setFont(own.font);
        const QRect room = own.rect.adjusted(kMargin, 0, -kMargin, 0);
        const Formula formula(index.data(kFormulaRole).toString(), look::kLabelPx);
        if (formula.width() > 0)
            formula.paint(*painter, {room.right() - formula.width(),
                                     room.top() + (room.height() + formula.ascent()) / 2 - 1});
        else
            painter->drawText(room, static_cast<int>(own.displayAlignment), words);
    }
};

} // namespace

DataTable::DataTable(QAbstractItemModel* model, const QString& name, QWidget* parent)
    : QTableView(parent) {
    setModel(model);
    setItemDelegate(new FormulaCells(this));
    setAccessibleName(name);
    look::setToolTip(*this, QStringLiteral("Ctrl+C copie tout le tableau pour un tableur."));
    setVerticalScrollBar(new look::ScrollBar(this, look::ScrollBar::Top::Minimum));
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setTabKeyNavigation(false);
    setFrameShape(QFrame::NoFrame);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(kRowHeight);
    auto* header = new FormulaHeader(this);
    setHorizontalHeader(header);
    header->fit();
    connect(model, &QAbstractItemModel::modelReset, header, [header] { header->fit(); });
}

void DataTable::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy))
        copyAll();
    else if (event->key() == Qt::Key_Space)
        event->ignore(); // starts and stops the simulation
    else
        QTableView::keyPressEvent(event);
}

void DataTable::copyAll() const {
    QStringList lines;
    QStringList cells;
    const int columns = model()->columnCount();
    for (int column = 0; column < columns; ++column)
        cells += model()->headerData(column, Qt::Horizontal).toString();
    lines += cells.join(u'\t');
    for (int row = 0; row < model()->rowCount(); ++row) {
        cells.clear();
        for (int column = 0; column < columns; ++column)
            cells += plainNumber(model()->index(row, column).data().toString());
        lines += cells.join(u'\t');
    }
    QApplication::clipboard()->setText(lines.join(u'\n'));
}

} // namespace common
