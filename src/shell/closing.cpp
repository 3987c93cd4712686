#include "shell/closing.h"

#include "shell/title_fragments.h"

namespace shell {

namespace {

/// The number that the modules' status is asked for: no program goes by it.
constexpr std::int16_t kExitModule = 20;

const QString kCompanion = QStringLiteral("TERMINUS.EXE");

} // namespace

void Closing::run() {
    state_.ModuleNumber = kExitModule;
    launcher_.queryModuleStatus(state_.ModuleNumber);
    // Only a positive count closes anything, meant so: with no module that says "OUI" even an open
    // one is left alone, and so are all when record 20 is not "NON" (-1).
    if (state_.ModuleNumber > 0)
        closeSiblingPrograms();
    starter_.start(state_.InstallDir + kCompanion);
}

void Closing::closeSiblingPrograms() {
    for (const QStringView fragment : kTitleFragments)
        quitWindowsWith(fragment);
}

/// Reads the list anew: the windows of a program asked before may be gone.
void Closing::quitWindowsWith(QStringView fragment) {
    for (const platform::ProgramWindow& window : windows_.list()) {
        // A window with a parent ends with it. A dialog may well name a module and belong to
        // another program, such as the one that asks whether to keep "Orvalente, module 23.odt".
        if (!window.hasParent && window.title.contains(fragment))
            windows_.postQuit(window.id);
    }
}

} // namespace shell
