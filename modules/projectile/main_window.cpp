#include "projectile/main_window.h"

#include "common/choices.h"
#include "common/french_number.h"
#include "common/law_page.h"
#include "common/qt_text.h"
#include "common/transport_bar.h"
#include "projectile/energy_plot.h"
#include "projectile/launch_panel.h"
#include "projectile/laws.h"
#include "projectile/readings.h"
#include "projectile/trajectory_plot.h"
#include "projectile/value_table.h"

#include <QKeyEvent>
#include <QScrollArea>
#include <QTabWidget>

#include <memory>

namespace projectile {

namespace {

constexpr int kModule = 23;

} // namespace

MainWindow::MainWindow(const Opening& opening)
    : SimulationWindow(QStringLiteral("Mouvement d’un projectile"), kModule, opening,
                       opening.exercise ? &*opening.exercise : nullptr) {
    if (opening.exercise)
        experiment_.setExercise(*opening.exercise);
    transport_ = transport();
    QTabWidget* const views = tabs();
    arrange(new LaunchPanel(experiment_), {views, new Readings(experiment_), transport_}, views);
}

QTabWidget* MainWindow::tabs() {
    auto* tabs = new QTabWidget;
    tabs->setDocumentMode(false);
    tabs->addTab(trajectoryTab(), QStringLiteral("Trajectoire"));
    tabs->addTab(new EnergyPlot(experiment_), QStringLiteral("Énergies"));
    tabs->addTab(new ValueTable(experiment_), QStringLiteral("Tableau"));
    auto* laws = new common::LawPage([this] { return lawsOf(experiment_.flight()); });
    experiment_.onChanged([laws] { laws->refresh(); });
    tabs->addTab(common::scrolled(laws), QStringLiteral("Formules"));
    return tabs;
}

QWidget* MainWindow::trajectoryTab() {
    plot_ = new TrajectoryPlot(experiment_);
    return common::withChoices<Shown>(*plot_, {{u"vitesse", &Shown::speed},
                                               {u"ses composantes", &Shown::components},
                                               {u"accélération", &Shown::acceleration},
                                               {u"points", &Shown::points}});
}

common::TransportBar* MainWindow::transport() {
    const auto reading = [this] {
        const QString seconds =
            common::qtText(common::frenchNumber(experiment_.playback().time(), 2));
        return std::pair(QStringLiteral("t\u00A0=\u00A0%1\\text{\u00A0s}").arg(seconds),
                         QStringLiteral("t\u00A0=\u00A0%1\u00A0s").arg(seconds));
    };
    return new common::TransportBar(
        experiment_.player(),
        {.slider = QStringLiteral("Temps"),
         .nothing = QStringLiteral("Lancé ainsi, le projectile reste au sol."),
         .step = 0.02,
         .hasRates = true,
         .reading = reading});
}

void MainWindow::keyPressEvent(QKeyEvent* event) {
    if (!transport_->takeKey(*event))
        SimulationWindow::keyPressEvent(event);
}

common::SimulationKind simulationKind() {
    return {kModule, QStringLiteral(".E21"),
            [](const common::Asked& asked) -> std::unique_ptr<QWidget> {
                return std::make_unique<MainWindow>(common::openingOf(asked, parseExercise));
            }};
}

} // namespace projectile
