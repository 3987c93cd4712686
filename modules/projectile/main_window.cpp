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

MainWindow::MainWindow(const Opening& opening) : ModelWindow(kAbout, opening) {
    auto* bar = transport(model().player(), [this] { return momentOf(model()); });
    auto* views = tabs({common::withChoices(*new TrajectoryPlot(model()), kChoices),
                        new EnergyPlot(model()), new ValueTable(model()), laws()});
    common::ControlPanel* const panel = controls();
    model().onKeptChanged([panel] { panel->refresh(); });
    arrange(panel, {views, new Readings(model()), bar}, views);
}

common::SimulationKind simulationKind() {
    return common::simulationKindOf<MainWindow, parseExercise>(kAbout, QStringLiteral(".E21"));
}

} // namespace projectile
