#pragma once

#include "orderform/order_printing.h"
#include "platform/message_box.h"
#include "viewer/collaborators.h"

class QWidget;

namespace app {

/// Opens `bondec` over the main window, each time afresh: it keeps nothing.
class OrderWindow : public viewer::ModalWindow {
public:
    /// All must outlive this one.
    OrderWindow(const orderform::PrintingParts& printing, platform::MessageBoxes& messageBoxes,
                QWidget& window)
        : printing_(printing), messageBoxes_(messageBoxes), window_(window) {}

    void open() override;

private:
    orderform::PrintingParts printing_;
    platform::MessageBoxes& messageBoxes_;
    QWidget& window_;
};

} // namespace app
