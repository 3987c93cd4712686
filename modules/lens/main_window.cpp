#include "lens/main_window.h"

#include "common/choices.h"
#include "common/law_page.h"
#include "common/plain_label.h"
#include "lens/bench_panel.h"
#include "lens/bench_plot.h"
#include "lens/laws.h"
#include "lens/measure_table.h"
#include "lens/readings.h"
#include "lens/screen_view.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>

#include <memory>

namespace lens {

namespace {

constexpr int kModule = 2;

/// The screen goes this far at a stroke of Page up or Page down, cm; an arrow moves it by one step
/// of its slider.
constexpr double kFar = 5;

} // namespace

MainWindow::MainWindow(const Opening& opening)
    : SimulationWindow(QStringLiteral("Banc d’optique"), kModule, opening,
                       opening.exercise ? &*opening.exercise : nullptr) {
    if (opening.exercise)
        bench_.setExercise(*opening.exercise);
    QTabWidget* const views = tabs();
    arrange(new BenchPanel(bench_), {views, foot()}, views);
}

QTabWidget* MainWindow::tabs() {
    auto* tabs = new QTabWidget;
    tabs->setDocumentMode(false);
    tabs->addTab(drawingTab(), QStringLiteral("Construction"));
    tabs->addTab(new MeasureTable(bench_), QStringLiteral("Mesures"));
    auto* laws = new common::LawPage([this] { return lawsOf(bench_); });
    bench_.onChanged([laws] { laws->refresh(); });
    tabs->addTab(common::scrolled(laws), QStringLiteral("Formules"));
    return tabs;
}

QWidget* MainWindow::drawingTab() {
    plot_ = new BenchPlot(bench_);
    QWidget* tab = common::withChoices<Shown>(*plot_, {{u"rayons", &Shown::rays},
                                                       {u"prolongements", &Shown::extensions},
                                                       {u"image", &Shown::image},
                                                       {u"faisceau", &Shown::beam}});
    const auto show = [this, tab] {
        for (auto* choice : tab->findChildren<QAbstractButton*>())
            choice->setEnabled(!bench_.hidesLens());
    };
    bench_.onChanged(show);
    show();
    return tab;
}

QWidget* MainWindow::foot() {
    auto* widget = new QWidget;
    auto* layout = new QHBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(common::kGap);
    layout->addWidget(new Readings(bench_), 1);
    layout->addWidget(new ScreenView(bench_));
    return widget;
}

void MainWindow::keyPressEvent(QKeyEvent* event) {
    const double step = quantity(Parameter::Screen).step;
    const auto move = [this](double by) {
        bench_.set(Parameter::Screen, bench_.arrangement().screen + by);
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
        return bench_.measure();
    default:
        SimulationWindow::keyPressEvent(event);
    }
}

common::SimulationKind simulationKind() {
    return {kModule, QStringLiteral(".E24"),
            [](const common::Asked& asked) -> std::unique_ptr<QWidget> {
                return std::make_unique<MainWindow>(common::openingOf(asked, parseExercise));
            }};
}

} // namespace lens
