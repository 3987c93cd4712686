#include "common/house.h"
#include "common/module_run.h"
#include "links/links_window.h"

#include <QApplication>
#include <QDesktopServices>

namespace {

constexpr int kModule = 7;

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    common::applyHouse(application);
    const common::ModuleRun run(kModule);
    links::LinksWindow window(links::ownLinks(), run.record().edition(),
                              &QDesktopServices::openUrl);
    window.show();
    return QApplication::exec();
}
