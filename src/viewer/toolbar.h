#pragma once

#include <QWidget>

namespace viewer {

/// The buttons at the top of the main window. Each is found by its name.
class Toolbar : public QWidget {
public:
    explicit Toolbar(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace viewer
