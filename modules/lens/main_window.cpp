#include "lens/main_window.h"

#include "common/choices.h"
#include "common/plain_label.h"
#include "lens/about.h"
#include "lens/bench_plot.h"
#include "lens/controls.h"
#include "lens/laws.h"
#include "lens/measure_table.h"
#include "lens/readings.h"
#include "lens/screen_view.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QTabWidget>

namespace lens {

namespace {

/// The screen goes this far at a stroke of Page up or Page down, cm; an arrow moves it by one step
/// of its slider.
constexpr double kFar = 5;

} // namespace

MainWindow::MainWindow(const Opening& opening) : ModelWindow(kAbout, opening) {
    auto* views = tabs({drawing(), new MeasureTable(model()), laws()});
    common::ControlPanel* const panel = controls();
    model().onMeasured([panel] { panel->refresh(); });
    arrange(panel, {views, foot()}, views);
}

QWidget* MainWindow::drawing() {
    QWidget* const tab = common::withChoices(*new BenchPlot(model()), kChoices);
    const auto show = [this, tab] {
        for (auto* choice : tab->findChildren<QAbstractButton*>())
            choice->setEnabled(!model().hidesLens());
    };
    model().onChanged(show);
    show();
    return tab;
}

QWidget* MainWindow::foot() {
    auto* widget = new QWidget;
    auto* layout = new QHBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(common::kGap);
    layout->addWidget(new Readings(model()), 1);
    layout->addWidget(new ScreenView(model()));
    return widget;
}

void MainWindow::keyPressEvent(QKeyEvent* event) {
    const double step = quantity(Parameter::Screen).step;
    const auto move = [this](double by) {
        model().set(Parameter::Screen, model().arrangement().screen + by);
    };
    switch (event->key()) {
    case Qt::Key_Left:
        return move(-step);
    case Qt::Key_Right:
        return move(step);
    case Qt::Key_PageDown:
        return move(-kFar);
    case Qt::Key_PageUp:
        return move(kFar);
    case Qt::Key_Space:
        return model().measure();
    default:
        ModelWindow::keyPressEvent(event);
    }
}

common::SimulationKind simulationKind() {
    return common::simulationKindOf<MainWindow, parseExercise>(kAbout, QStringLiteral(".E24"));
}

} // namespace lens
