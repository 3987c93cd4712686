#include "common/module_application.h"
#include "common/module_run.h"
#include "projectile/simulation.h"

namespace {

constexpr int kModule = 23;

} // namespace

int main(int argc, char** argv) {
    const common::ModuleApplication application(argc, argv);
    const common::ModuleRun run(kModule);
    projectile::Simulation simulation(run.record(), common::ModuleRun::directory());
    QObject::connect(&application, &QGuiApplication::applicationStateChanged, &application,
                     [&simulation](Qt::ApplicationState state) {
                         // Later: a window is not replaced while it is told that it has come.
                         if (state == Qt::ApplicationActive)
                             QMetaObject::invokeMethod(
                                 qApp, [&simulation] { simulation.lookForExercise(); },
                                 Qt::QueuedConnection);
                     });
    return QApplication::exec();
}
