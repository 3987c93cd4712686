#include "common/module_run.h"

#include <QCoreApplication>

namespace common {

ModuleRun::ModuleRun(int module) : record_(directory(), module) {
    record_.setRunning(true);
}

ModuleRun::~ModuleRun() {
    record_.setRunning(false);
}

QString ModuleRun::directory() {
    return QCoreApplication::applicationDirPath();
}

QString windowTitle(const QString& name, int module) {
    return QStringLiteral("%1 - Orvalente, module %2").arg(name).arg(module, 2, 10, QChar(u'0'));
}

} // namespace common
