#pragma once

#include "common/about.h"
#include "common/control_panel.h"
#include "common/law_page.h"
#include "common/opening.h"
#include "common/player.h"
#include "common/reading.h"
#include "common/task.h"

#include <QMainWindow>
#include <QScrollArea>

class QTabWidget;
class QVBoxLayout;

namespace common {

class TransportBar;

/// The window of a simulation: controls at the left, what is seen at the right, above it the task
/// of an exercise. The keyboard is with the window itself until somebody goes elsewhere.
class SimulationWindow : public QMainWindow {
protected:
    /// `task` is that of the opening's exercise, null without one.
    SimulationWindow(const About& about, const Opening& opening, const Task* task);

    /// To be called once at the end of the constructor, with what stands at the left, and at the
    /// right from above; `main` is the one of these that takes what room there is.
    void arrange(QWidget* controls, std::initializer_list<QWidget*> views, const QWidget* main);

    /// The views of which one is seen, in the order of their captions.
    QTabWidget* tabs(std::initializer_list<QWidget*> views) const;

    /// The transport bar, which also has the keys of the window; `moment` is what it reads.
    QWidget* transport(Player& player, std::function<Reading()> moment);

    /// Called after a right answer.
    virtual void showResults() = 0;

    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* left(QWidget* controls) const;

    const About& about_;
    QString edition_;
    bool hasTask_;
    QVBoxLayout* right_;
    TransportBar* transport_ = nullptr; ///< null for what stands still
};

/// The window over what it shows: a `Model` with its exercise, of which `controlsOf` and `lawsOf`
/// tell, and which says when it has changed.
template <class Model, class Exercise>
class ModelWindow : public SimulationWindow {
protected:
    ModelWindow(const About& about, const ExerciseOpening<Exercise>& opening)
        : SimulationWindow(about, opening, opening.exercise ? &*opening.exercise : nullptr) {
        if (opening.exercise)
            model_.setExercise(*opening.exercise);
    }

    Model& model() { return model_; }

    ControlPanel* controls() {
        auto* panel = new ControlPanel([this] { return controlsOf(model_); });
        model_.onChanged([panel] { panel->refresh(); });
        return panel;
    }

    QWidget* laws() {
        auto* page = new LawPage([this] { return lawsOf(model_); });
        model_.onChanged([page] { page->refresh(); });
        return scrolled(page);
    }

    void showResults() override { model_.reveal(); }

private:
    Model model_;
};

/// A widget whose parts stand one below the other, without margins.
QVBoxLayout* column(QWidget* widget);

} // namespace common
