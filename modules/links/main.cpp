#include "common/module_application.h"
#include "common/module_run.h"
#include "links/links_window.h"

#include <QDesktopServices>

namespace {

constexpr int kModule = 7;

} // namespace

int main(int argc, char** argv) {
    const common::ModuleApplication application(argc, argv);
    const common::ModuleRun run(kModule);
    links::LinksWindow window(links::ownLinks(), run.record().edition(),
                              &QDesktopServices::openUrl);
    window.show();
    return QApplication::exec();
}
