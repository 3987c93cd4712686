#include "app/order_window.h"

#include "orderform/bondec.h"

namespace app {

void OrderWindow::open() {
    orderform::Bondec(printing_, messageBoxes_, &window_).exec();
}

} // namespace app
