#include "shell/closing.h"

#include "files/within.h"
#include "platform/file_names.h"
#include "shell/status_place.h"
#include "shell/title_fragments.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace shell {

namespace {

/// The number that the modules' status is asked for: no program goes by it.
constexpr std::int16_t kExitModule = 20;

const QString kCompanion = QStringLiteral("TERMINUS.EXE");

bool isShell(const QString& program) {
    const QString own = QCoreApplication::applicationFilePath();
    return QFileInfo(program).fileName().compare(QFileInfo(own).fileName(), Qt::CaseInsensitive) ==
           0;
}

/// Of Windows or of Wine, wherever it stands.
bool isHelpViewer(const QString& program) {
    return QFileInfo(program).completeBaseName().compare(QStringLiteral("winhlp32"),
                                                         Qt::CaseInsensitive) == 0;
}

} // namespace

void Closing::run() {
    state_.ModuleNumber = kExitModule;
    launcher_.queryModuleStatus(state_.ModuleNumber);
    // Only a positive count closes anything, meant so: with no module that says "OUI" even an open
    // one is left alone, and so are all when record 20 is not "NON" (-1).
    if (state_.ModuleNumber > 0)
        closeSiblingPrograms();
    starter_.start(state_.InstallDir + kCompanion, statusFileVariable(state_.StatusFilePath));
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
        if (!window.hasParent && window.title.contains(fragment) &&
            mayQuit(windows_.owner(window.id), fragment == kTitleFragments.front()))
            windows_.postQuit(window.id);
    }
}

bool Closing::mayQuit(const platform::WindowOwner& owner, bool isHelp) const {
    if (owner.pid == 0)
        return true;
    // One of the shells may stand beside its modules, and have a page's title like theirs.
    if (isShell(owner.program))
        return false;
    if (isHelp)
        return isHelpViewer(owner.program);
    return wasStartedHere(owner.pid) ||
           files::isFileWithin(platform::standardPath(owner.program),
                               platform::standardPath(state_.InstallDir));
}

bool Closing::wasStartedHere(qint64 pid) const {
    const auto& ids = state_.SiblingProcessIds;
    for (int module = ids.first; module <= ids.last; ++module) {
        // Kept with a sign, which some systems' numbers do not have.
        if (static_cast<std::uint32_t>(ids.valueOr(module, 0)) == pid)
            return true;
    }
    return false;
}

} // namespace shell
