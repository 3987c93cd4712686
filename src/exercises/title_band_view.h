#pragma once

#include <QWidget>

namespace exercises {

/// `tito`: the title band's letters, each in an ink of its own.
class TitleBandView : public QWidget {
public:
    explicit TitleBandView(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override; ///< `tito_Paint`
};

} // namespace exercises
