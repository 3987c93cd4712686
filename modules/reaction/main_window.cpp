#include "reaction/main_window.h"

#include "reaction/about.h"
#include "reaction/amount_bars.h"
#include "reaction/controls.h"
#include "reaction/equation_view.h"
#include "reaction/laws.h"
#include "reaction/listing.h"
#include "reaction/state_table.h"

#include <QTabWidget>

namespace reaction {

MainWindow::MainWindow(const Opening& opening) : ModelWindow(kAbout, opening) {
    auto* bar = transport(model().player(), [this] { return momentOf(model()); });
    auto* views = tabs({new AmountBars(model()), new StateTable(model()), laws()});
    arrange(controls(), {new EquationView(model()), views, bar}, views);
}

common::SimulationKind simulationKind() {
    return common::simulationKindOf<MainWindow, parseExercise>(kAbout, QStringLiteral(".E20"));
}

} // namespace reaction
