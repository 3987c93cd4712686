#pragma once

#include "common/control.h"

#include <QWidget>

class QStackedWidget;

namespace common {

/// The controls of a simulation in its window.
class ControlPanel : public QWidget {
public:
    /// `controls` gives them as they are at the moment.
    explicit ControlPanel(std::function<Controls()> controls, QWidget* parent = nullptr);

    /// Asks for them anew. To be called when anything has changed.
    void refresh();

private:
    struct Part {
        QWidget* widget;
        std::function<void(const Control&)> show = [](const Control&) {};
        QStackedWidget* place = nullptr; ///< that it shares with others of which one is shown
    };

    Part made(const Control& control);
    Part segments(const Control& control);
    /// One part, or those that share a place or a row.
    QWidget* placed(const Controls& controls, std::size_t from, std::size_t end);

    std::function<Controls()> controls_;
    std::vector<Part> parts_;
};

} // namespace common
