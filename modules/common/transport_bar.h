#pragma once

#include "common/player.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

namespace look {
class Button;
}

class QKeyEvent;
class QSlider;

namespace common {

class FormulaLabel;

/// What a module says in its transport bar.
struct TransportWords {
    QString slider;  ///< name of what is slid
    QString nothing; ///< why the button is dead, when there is nothing to run
    double step;     ///< one step by hand, s
    bool hasRates;   ///< slower and faster than the clock
    /// The moment as a formula, and as a screen reader says it.
    std::function<std::pair<QString, QString>()> reading;
};

/// Start, pause, single steps, the moment to pull at, and the rate. Has the only timer of the
/// program, which ticks only while the simulation runs.
class TransportBar : public QWidget {
public:
    /// `player` lives as long as this does.
    TransportBar(Player& player, TransportWords words, QWidget* parent = nullptr);

    /// The keys of the window: the space bar, arrows, Home. False when it is another.
    bool takeKey(const QKeyEvent& event);

private:
    void addButtons();
    void addSlider();
    void addRates();
    void toggle();
    void reset();
    void step(int pictures);
    void show();
    void tick();

    Player& player_;
    TransportWords words_;
    look::Button* start_ = nullptr;
    QSlider* slider_ = nullptr;
    FormulaLabel* reading_ = nullptr;
    QTimer timer_;
    QElapsedTimer clock_;
};

} // namespace common
