#include "reaction/main_window.h"

#include "common/french_number.h"
#include "common/law_page.h"
#include "common/qt_text.h"
#include "common/transport_bar.h"
#include "reaction/amount_bars.h"
#include "reaction/equation_view.h"
#include "reaction/laws.h"
#include "reaction/mixture_panel.h"
#include "reaction/state_table.h"

#include <QKeyEvent>
#include <QScrollArea>
#include <QTabWidget>

#include <memory>

namespace reaction {

namespace {

constexpr int kModule = 10;

} // namespace

MainWindow::MainWindow(const Opening& opening)
    : SimulationWindow(QStringLiteral("Réactif limitant"), kModule, opening,
                       opening.exercise ? &*opening.exercise : nullptr) {
    if (opening.exercise)
        experiment_.setExercise(*opening.exercise);
    transport_ = transport();
    QTabWidget* const views = tabs();
    arrange(new MixturePanel(experiment_), {new EquationView(experiment_), views, transport_},
            views);
}

QTabWidget* MainWindow::tabs() {
    auto* tabs = new QTabWidget;
    tabs->setDocumentMode(false);
    tabs->addTab(new AmountBars(experiment_), QStringLiteral("Quantités"));
    tabs->addTab(new StateTable(experiment_), QStringLiteral("Tableau"));
    auto* laws = new common::LawPage([this] { return lawsOf(experiment_); });
    experiment_.onChanged([laws] { laws->refresh(); });
    tabs->addTab(common::scrolled(laws), QStringLiteral("Calcul"));
    return tabs;
}

common::TransportBar* MainWindow::transport() {
    const auto reading = [this] {
        const QString x = common::qtText(common::frenchNumber(experiment_.progress(), 2));
        return std::pair(QStringLiteral("x\u00A0=\u00A0%1\\text{\u00A0mol}").arg(x),
                         QStringLiteral("x\u00A0=\u00A0%1\u00A0mol").arg(x));
    };
    return new common::TransportBar(
        experiment_.player(), {.slider = QStringLiteral("Avancement"),
                               .nothing = QStringLiteral("Sans l’un des réactifs, rien ne réagit."),
                               .step = 0.1,
                               .hasRates = false,
                               .reading = reading});
}

void MainWindow::keyPressEvent(QKeyEvent* event) {
    if (!transport_->takeKey(*event))
        SimulationWindow::keyPressEvent(event);
}

common::SimulationKind simulationKind() {
    return {kModule, QStringLiteral(".E20"),
            [](const common::Asked& asked) -> std::unique_ptr<QWidget> {
                return std::make_unique<MainWindow>(common::openingOf(asked, parseExercise));
            }};
}

} // namespace reaction
