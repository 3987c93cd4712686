#pragma once

#include "common/law.h"

#include <QWidget>

#include <functional>
#include <vector>

class QScrollArea;

namespace common {

/// Laws below each other, with their numbers.
class LawPage : public QWidget {
public:
    /// `laws` gives what is to be shown at the moment.
    explicit LawPage(std::function<std::vector<Law>()> laws, QWidget* parent = nullptr);

    /// Asks for the laws anew.
    void refresh();

protected:
    void paintEvent(QPaintEvent*) override;

private:
    std::function<std::vector<Law>()> find_;
    std::vector<Law> laws_;
};

/// `page` in an area that scrolls where the page is larger.
QScrollArea* scrolled(QWidget* page);

} // namespace common
