#pragma once

#include "common/about.h"
#include "common/player.h"
#include "common/reading.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

namespace look {
class Button;
}

class QKeyEvent;

namespace common {

class FormulaLabel;
class MeasuredSlider;

/// Start, pause, single steps, the moment to pull at, and the rate. Has the only timer of the
/// program, which ticks only while the simulation runs.
class TransportBar : public QWidget {
public:
    /// `player` and `about` live as long as this does; `moment` is what is read at the moment.
    TransportBar(Player& player, const Transport& about, std::function<Reading()> moment,
                 QWidget* parent = nullptr);

    /// The keys of the window: the space bar, arrows, Home. False when it is another.
    bool takeKey(const QKeyEvent& event);

private:
    void addButtons();
    void addSlider();
    void addRates();
    double timeAt(int position) const;
    int positionAt(double time) const;
    void toggle();
    void reset();
    void step(int pictures);
    void show();
    void tick();

    Player& player_;
    const Transport& about_;
    std::function<Reading()> moment_;
    look::Button* start_ = nullptr;
    MeasuredSlider* slider_ = nullptr;
    FormulaLabel* reading_ = nullptr;
    QTimer timer_;
    QElapsedTimer clock_;
};

} // namespace common
