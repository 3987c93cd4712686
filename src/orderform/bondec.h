#pragma once

#include "orderform/order_printing.h"
#include "platform/message_box.h"

#include <QDialog>

#include <array>

class QLabel;

namespace look {
class Button;
}

namespace orderform {

class FieldNote;
class OrderField;

/// `bondec`: takes a name, an address and a number of copies, and prints the mail-order form. It
/// stays open afterwards, in case the paper jams. Enter leads from field to field, and prints in
/// the last one, so that nobody is told what is missing on the way; Escape closes the form.
class Bondec : public QDialog {
public:
    /// `messageBoxes` says why nothing was printed; it must outlive the form.
    Bondec(const PrintingParts& printing, platform::MessageBoxes& messageBoxes, QWidget* parent);

    /// What the fields hold.
    Order order() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void addHeading();
    void addFields();
    void addNotes();
    void addAmounts();
    void addButtons();
    QLabel* addLabel(const QString& text, const QRect& place);
    QLabel* addAmount(int top);
    OrderField& field(Field field) const { return *fields_[static_cast<std::size_t>(field)]; }

    void textChanged();
    void showFaults(const Order& order);
    void showAmounts();
    void print();
    void sayPrinted(bool printed);

    PrintingParts printing_;
    platform::MessageBoxes& messageBoxes_;
    std::array<OrderField*, kFieldCount> fields_{};
    QLabel* amount_ = nullptr;
    QLabel* total_ = nullptr;
    FieldNote* state_ = nullptr;
    look::Button* cancel_ = nullptr;
    bool checks_ = false; ///< once the form was to be printed, faults come and go as one types
};

} // namespace orderform
