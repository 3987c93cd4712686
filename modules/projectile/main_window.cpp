#include "projectile/main_window.h"

#include "common/choices.h"
#include "projectile/about.h"
#include "projectile/controls.h"
#include "projectile/energy_plot.h"
#include "projectile/laws.h"
#include "projectile/listing.h"
#include "projectile/readings.h"
#include "projectile/trajectory_plot.h"
#include "projectile/value_table.h"

#include <QTabWidget>

namespace projectile {

namespace {

QWidget* trajectory(Experiment& experiment) {
    return common::withChoices<Shown>(*new TrajectoryPlot(experiment),
                                      {{u"vitesse", &Shown::speed},
                                       {u"ses composantes", &Shown::components},
                                       {u"accélération", &Shown::acceleration},
                                       {u"points", &Shown::points}});
}

} // namespace

MainWindow::MainWindow(const Opening& opening) : ModelWindow(kAbout, opening) {
    auto* bar = transport(model().player(), [this] { return momentOf(model()); });
    auto* views = tabs({{QStringLiteral("Trajectoire"), trajectory(model())},
                        {QStringLiteral("Énergies"), new EnergyPlot(model())},
                        {QStringLiteral("Tableau"), new ValueTable(model())},
                        {QStringLiteral("Formules"), laws()}});
    common::ControlPanel* const panel = controls();
    model().onKeptChanged([panel] { panel->refresh(); });
    arrange(panel, {views, new Readings(model()), bar}, views);
}

common::SimulationKind simulationKind() {
    return common::simulationKindOf<MainWindow, parseExercise>(kAbout, QStringLiteral(".E21"));
}

} // namespace projectile
